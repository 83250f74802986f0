#pragma once

#include "velm/velm_export.h"

#include <QStringList>

namespace velm {
class IFileSystemListener;

/// Watches directories. The order of the operations is part of the interface.
class VELM_EXPORT IFileSystemWatcher
{
public:
    virtual ~IFileSystemWatcher();

    /// Not owned. It is there before the first path is added, and outlives the watcher or is replaced.
    virtual void setListener(IFileSystemListener* listener) = 0;
    virtual bool addPath(const QString& path) = 0;
    virtual bool removePath(const QString& path) = 0;
    /// Those that could not be removed.
    virtual QList<QString> removePaths(const QList<QString>& paths) = 0;
    virtual QList<QString> directories() const = 0;
    virtual void onDirectoryChanged(const QString& path) const = 0;
};
} // namespace velm
