#pragma once

#include "velm/sheetset/filesystem.h"

#include <optional>

namespace workbench {
/// The disk under the tree of sheet sets. A large folder takes long to list, so list() does it on another thread in
/// place of browseDirectory().
class SheetFiles : public velm::FileSystem
{
public:
    /// The paths of what is in a folder; name filters are for files. Empty for a folder that isn't there or that the
    /// user may not read. From any thread.
    virtual std::optional<QStringList> list(const QString& folder, const QStringList& nameFilters) const;
    /// Nothing at all.
    QList<QString> browseDirectory(const QString& path, const QStringList& nameFilters,
                                   const QFlags<QDir::Filter>& filters) const final;
};
} // namespace workbench
