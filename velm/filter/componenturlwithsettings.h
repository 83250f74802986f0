#pragma once

#include "velm/velm_export.h"

#include <QMetaType>
#include <QObject>
#include <QUrl>
#include <QVariant>

namespace velm {
/// The QML component that edits a value, with free settings for it.
class VELM_EXPORT ComponentUrlWithSettings
{
    Q_GADGET
    Q_PROPERTY(QUrl url READ getUrl CONSTANT)
    Q_PROPERTY(QVariant settings READ getSettings CONSTANT)
public:
    ComponentUrlWithSettings();
    ComponentUrlWithSettings(const QUrl& componentUrl, const QVariant& componentSettings);
    ComponentUrlWithSettings(const ComponentUrlWithSettings&);
    ComponentUrlWithSettings(ComponentUrlWithSettings&&) noexcept;
    ComponentUrlWithSettings& operator=(const ComponentUrlWithSettings&);
    ComponentUrlWithSettings& operator=(ComponentUrlWithSettings&&) noexcept;
    ~ComponentUrlWithSettings();

    QUrl getUrl() const { return url; }
    QVariant getSettings() const { return settings; }
    bool isEmpty() const { return url.isEmpty(); }

    QUrl url;
    QVariant settings;
};

namespace filter {
/// The editor that comes with the library for a kind of values, named by the kind's key: "StringValue.qml" and so on.
VELM_EXPORT QUrl defaultComponentUrl(const QString& type);
} // namespace filter
} // namespace velm

Q_DECLARE_METATYPE(velm::ComponentUrlWithSettings)
