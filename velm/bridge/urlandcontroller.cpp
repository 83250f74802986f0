#include "velm/bridge/urlandcontroller.h"

namespace velm {
QVariant UrlAndController::create(const QUrl& sourceUrl, QObject* controller)
{
    UrlAndController value;
    value.sourceUrl = sourceUrl;
    value.controller = controller;
    return QVariant::fromValue(std::move(value));
}
} // namespace velm
