#include "velm/dialogs/commandlinecalls.h"

#include "velm/bridge/externalfunctions.h"

#include <QMetaObject>
#include <QObject>

namespace velm {
namespace {
void queueCommand(QObject* context, const OdString& command)
{
    QMetaObject::invokeMethod(
        context, [command] { processCommand(command); }, Qt::QueuedConnection);
}
} // namespace

void acceptCommandLine(QObject* context)
{
    if (context)
        QMetaObject::invokeMethod(
            context, [] { processEnter(); }, Qt::QueuedConnection);
}

void rejectCommandLine(QObject* context)
{
    if (context)
        QMetaObject::invokeMethod(
            context, [] { processEscape(); }, Qt::QueuedConnection);
}

void invokeCommandLineOption(QObject* context, OdString option)
{
    std::wstring keyword = option.wide();
    if (context == nullptr || keyword.empty())
        return;
    if (keyword.front() != L'_')
        keyword.insert(keyword.begin(), L'_');
    queueCommand(context, OdString(keyword));
}

void invokeCommandLineEnterValues(QObject* context, const OdArray<OdString>& values)
{
    if (context == nullptr || values.isEmpty())
        return;
    std::wstring joined;
    for (unsigned int i = 0; i < values.size(); ++i)
        joined += (i == 0 ? L"" : L";") + values[i].wide();
    queueCommand(context, OdString(joined));
}
} // namespace velm
