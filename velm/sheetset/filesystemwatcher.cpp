#include "velm/sheetset/filesystemwatcher.h"

#include "velm/sheetset/ifilesystemlistener.h"

namespace velm {
FileSystemWatcher::FileSystemWatcher()
{
    connect(this, &QFileSystemWatcher::directoryChanged, this, &FileSystemWatcher::onDirectoryChanged);
}

FileSystemWatcher::~FileSystemWatcher() = default;

void FileSystemWatcher::setListener(IFileSystemListener* listener)
{
    m_listener = listener;
}

bool FileSystemWatcher::addPath(const QString& path)
{
    return QFileSystemWatcher::addPath(path);
}

bool FileSystemWatcher::removePath(const QString& path)
{
    return QFileSystemWatcher::removePath(path);
}

QList<QString> FileSystemWatcher::removePaths(const QList<QString>& paths)
{
    return paths.isEmpty() ? QList<QString>() : QFileSystemWatcher::removePaths(paths); // Qt warns of an empty list
}

QList<QString> FileSystemWatcher::directories() const
{
    return QFileSystemWatcher::directories();
}

void FileSystemWatcher::onDirectoryChanged(const QString& path) const
{
    m_listener->onDirectoryChanged(path);
}
} // namespace velm
