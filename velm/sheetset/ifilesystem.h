#pragma once

#include "velm/velm_export.h"

#include <QDir>
#include <QStringList>

namespace velm {
/// What the tree of sheet sets asks of the disk. The order of the operations is part of the interface.
class VELM_EXPORT IFileSystem
{
public:
    virtual ~IFileSystem();

    virtual bool isDirectory(const QString& path) const = 0;
    virtual bool isFile(const QString& path) const = 0;
    virtual bool directoryExists(const QString& path) const = 0;
    /// The absolute paths of what is in the directory, in no particular order; name filters are for files.
    virtual QList<QString> browseDirectory(const QString& path, const QStringList& nameFilters,
                                           const QFlags<QDir::Filter>& filters) const = 0;
};
} // namespace velm
