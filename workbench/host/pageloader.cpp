#include "host/pageloader.h"

#include "velm/bridge/engine.h"
#include "velm/sheetset/fileutil.h"

#include <QFileInfo>
#include <QQmlComponent>
#include <QQuickItem>

#include <algorithm>

namespace workbench {
namespace {
QString sourceAround(const QQmlError& error)
{
    constexpr int around = 2;
    const QString file = velm::FileUtil::urlToLocalFile(error.url());
    if (error.line() <= 0 || !QFileInfo(file).isFile())
        return {};
    const QStringList lines = velm::FileUtil::readFile(file).split(u'\n');
    const int last = static_cast<int>(std::min<qsizetype>(lines.size(), error.line() + around));
    QStringList result;
    for (int line = std::max(1, error.line() - around); line <= last; ++line)
        result << QStringLiteral("%1%2  %3")
                      .arg(line == error.line() ? QLatin1Char('>') : QLatin1Char(' '))
                      .arg(line, static_cast<int>(QString::number(last).size()))
                      .arg(lines[line - 1]);
    return result.join(u'\n');
}
} // namespace

LoadedPage loadPage(QQmlEngine& engine, const QUrl& page, const QVariantMap& properties)
{
    QQmlComponent component(&engine, page);
    std::unique_ptr<QObject> object;
    if (!component.isError())
        object.reset(component.createWithInitialProperties(properties));
    if (velm::logErrors(component.errors()) == velm::HasErrors::Yes)
        return {nullptr, component.errorString().trimmed(), sourceAround(component.errors().constFirst())};
    if (auto* item = qobject_cast<QQuickItem*>(object.get())) {
        object.release();
        return {std::unique_ptr<QQuickItem>(item), {}, {}};
    }
    const QString reason = QObject::tr("%1: the page isn't an item that can be shown.").arg(page.toString());
    qCritical("%s", qUtf8Printable(reason));
    return {nullptr, reason, {}};
}
} // namespace workbench
