#include "host/pageloader.h"

#include "velm/bridge/engine.h"

#include <QQmlComponent>
#include <QQuickItem>

namespace workbench {
LoadedPage loadPage(QQmlEngine& engine, const QUrl& page, const QVariantMap& properties)
{
    QQmlComponent component(&engine, page);
    std::unique_ptr<QObject> object;
    if (!component.isError())
        object.reset(component.createWithInitialProperties(properties));
    if (velm::logErrors(component.errors()) == velm::HasErrors::Yes)
        return {nullptr, component.errorString().trimmed()};
    if (auto* item = qobject_cast<QQuickItem*>(object.get())) {
        object.release();
        return {std::unique_ptr<QQuickItem>(item), QString()};
    }
    const QString reason = QObject::tr("%1: the page isn't an item that can be shown.").arg(page.toString());
    qCritical("%s", qUtf8Printable(reason));
    return {nullptr, reason};
}
} // namespace workbench
