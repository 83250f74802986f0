#pragma once

#include "velm/velm_export.h"

#include <QObject>

namespace velm {
/// The web documentation for pages, by the name of a component. The host has the table.
class VELM_EXPORT WebDocUtils : public QObject
{
    Q_OBJECT
public:
    explicit WebDocUtils(QObject* parent = nullptr);
    ~WebDocUtils() override;

    /// Nothing without a host.
    Q_INVOKABLE void open(QString componentName) const;
    /// A null string without a host.
    Q_INVOKABLE QString getUrl(QString componentName) const;
};
} // namespace velm
