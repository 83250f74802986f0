#pragma once

#include <QString>
#include <QUrl>
#include <QVariantMap>

#include <memory>

class QQmlEngine;
class QQuickItem;

namespace workbench {
/// The root of a page, or null and why.
struct LoadedPage
{
    std::unique_ptr<QQuickItem> root;
    QString error;
    QString source; ///< the lines around the first error with their numbers, that of the error marked by ">"; empty
                    ///< where there are none, and for pages that aren't files
};

/// Makes a page with initial properties of its root. What goes wrong is logged too.
LoadedPage loadPage(QQmlEngine& engine, const QUrl& page, const QVariantMap& properties);
} // namespace workbench
