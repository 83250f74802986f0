#pragma once

#include <QMutex>
#include <QObject>
#include <QThreadPool>

#include <functional>
#include <map>
#include <stop_token>

namespace workbench {
/// Work on other threads, whose results are taken up on this one bit by bit. At the end of its life what runs is
/// asked to stop and waited for; what waits is dropped, and so are the results that weren't taken up.
class Background : public QObject
{
    Q_OBJECT
public:
    /// What is to be done on this thread with what has come out.
    using Result = std::function<void()>;
    using Job = std::function<Result(const std::stop_token&)>;

    explicit Background(int threads);
    ~Background() override;

    /// Of the jobs that wait, the one with the highest priority is the next, and its result comes before others.
    void start(const Job& job, int priority);
    /// Takes up a result; false when there is none.
    bool finishOne();

Q_SIGNALS:
    /// There are results again. Comes from another thread.
    void ready();

private:
    QMutex m_mutex;
    std::multimap<int, Result, std::greater<>> m_results; // by priority
    std::stop_source m_stop;
    QThreadPool m_pool;
};
} // namespace workbench
