#include "tour/xdotool.h"

#include "tour/driver.h"

#include <QProcess>

namespace workbench {
void xdotool(const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start("xdotool", arguments);
    if (!process.waitForStarted())
        throw DriverError(QStringLiteral("the tool xdotool can't be run: ") + process.errorString());
    process.waitForFinished();
    if (process.exitCode() != 0)
        throw DriverError(QStringLiteral("xdotool %1: %2").arg(arguments.join(' '), process.readAll().trimmed()));
}
} // namespace workbench
