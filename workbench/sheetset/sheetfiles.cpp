#include "sheetset/sheetfiles.h"

#include "velm/sheetset/sheetsetfilesystemtreemodel.h"

#include <QFileInfo>

namespace workbench {
std::optional<QStringList> SheetFiles::list(const QString& folder, const QStringList& nameFilters) const
{
    const QFileInfo info(folder);
    // Without the right to execute it, names can be listed but nothing can be said of them.
    if (!info.isDir() || !info.isReadable() || !info.isExecutable())
        return std::nullopt;
    return FileSystem::browseDirectory(folder, nameFilters, velm::SheetSetFileSystemTreeModel::entryFilters);
}

QList<QString> SheetFiles::browseDirectory(const QString&, const QStringList&, const QFlags<QDir::Filter>&) const
{
    return {};
}
} // namespace workbench
