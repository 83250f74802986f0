#pragma once

#include "velm/velm_export.h"

#include <QObject>
#include <QUrl>
#include <QVariant>

namespace velm {
/// A page and its controller, in a form that QML takes from a QVariant.
class VELM_EXPORT UrlAndController
{
    Q_GADGET
    Q_PROPERTY(QUrl sourceUrl MEMBER sourceUrl CONSTANT)
    Q_PROPERTY(QObject* controller MEMBER controller CONSTANT)
public:
    static QVariant create(const QUrl& sourceUrl, QObject* controller);

    QUrl sourceUrl;
    QObject* controller = nullptr; // not owned
};
} // namespace velm

Q_DECLARE_METATYPE(velm::UrlAndController)
