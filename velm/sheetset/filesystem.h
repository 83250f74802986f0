#pragma once

#include "velm/sheetset/ifilesystem.h"

namespace velm {
/// The disk.
class VELM_EXPORT FileSystem : public IFileSystem
{
public:
    bool isDirectory(const QString& path) const override;
    bool isFile(const QString& path) const override;
    bool directoryExists(const QString& path) const override;
    /// Empty for a directory that doesn't exist.
    QList<QString> browseDirectory(const QString& path, const QStringList& nameFilters,
                                   const QFlags<QDir::Filter>& filters) const override;
};

/// Whether the path is the root of a drive.
VELM_EXPORT bool isDrive(const QString& path);
} // namespace velm
