#include "velm/bridge/urlandcontroller.h"

namespace velm {
QVariant UrlAndController::create(const QUrl& sourceUrl, QObject* controller)
{
    return QVariant::fromValue(UrlAndController{sourceUrl, controller});
}
} // namespace velm
