#include "velm/sheetset/filesystem.h"

#include "velm/sheetset/ifilesystemlistener.h"
#include "velm/sheetset/ifilesystemwatcher.h"

#include <QFileInfo>

namespace velm {
IFileSystem::~IFileSystem() = default;
IFileSystemListener::~IFileSystemListener() = default;
IFileSystemWatcher::~IFileSystemWatcher() = default;

bool FileSystem::isDirectory(const QString& path) const
{
    return QFileInfo(path).isDir();
}

bool FileSystem::isFile(const QString& path) const
{
    return QFileInfo(path).isFile();
}

bool FileSystem::directoryExists(const QString& path) const
{
    return QDir(path).exists();
}

QList<QString> FileSystem::browseDirectory(const QString& path, const QStringList& nameFilters,
                                           const QFlags<QDir::Filter>& filters) const
{
    QList<QString> paths;
    // Whoever shows them has an order of his own.
    const QFileInfoList entries = QDir(path).entryInfoList(nameFilters, filters, QDir::NoSort);
    paths.reserve(entries.size());
    for (const QFileInfo& entry : entries)
        paths.append(entry.absoluteFilePath());
    return paths;
}

bool isDrive(const QString& path)
{
    return QDir::drives().contains(QFileInfo(path));
}
} // namespace velm
