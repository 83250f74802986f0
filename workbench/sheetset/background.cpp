#include "sheetset/background.h"

#include <utility>

namespace workbench {
Background::Background(int threads)
{
    m_pool.setMaxThreadCount(threads);
}

Background::~Background()
{
    m_stop.request_stop();
    m_pool.clear();
    m_pool.waitForDone();
}

void Background::start(const Job& job, int priority)
{
    m_pool.start(
        [this, job, priority] {
            Result result = job(m_stop.get_token());
            QMutexLocker lock(&m_mutex);
            m_results.emplace(priority, std::move(result));
            const bool isFirst = m_results.size() == 1;
            lock.unlock();
            if (isFirst)
                Q_EMIT ready();
        },
        priority);
}

bool Background::finishOne()
{
    QMutexLocker lock(&m_mutex);
    if (m_results.empty())
        return false;
    const Result result = std::move(m_results.begin()->second);
    m_results.erase(m_results.begin());
    lock.unlock();
    result();
    return true;
}
} // namespace workbench
