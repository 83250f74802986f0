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
};

/// Makes a page with initial properties of its root. What goes wrong is logged too.
LoadedPage loadPage(QQmlEngine& engine, const QUrl& page, const QVariantMap& properties);
} // namespace workbench
