#pragma once

#include <QMetaMethod>
#include <QObject>
#include <QString>
#include <QStringList>

#include <vector>

namespace velmtest {
/// Writes down all signals of an object, those of QObject itself left out, in the order in which they come, as
/// "nameChanged" or "picked(3, red)". Model indexes read as "row,column", the invalid one as "-", lists of roles as
/// "[8]". Queued connections are not watched.
class SignalLog : public QObject
{
public:
    explicit SignalLog(const QObject& sender);

    /// What came since the last call, with blanks between.
    QString take();

    int qt_metacall(QMetaObject::Call call, int id, void** arguments) override;

private:
    std::vector<QMetaMethod> m_signals;
    QStringList m_log;
};
} // namespace velmtest
