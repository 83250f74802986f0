#include "sheetset/watchedfolders.h"

#include <QFileInfo>

#include <utility>

namespace workbench {
namespace {
constexpr int pause = 100; // milliseconds, in which the changes of a storm are gathered
}

WatchedFolders::WatchedFolders()
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(pause);
    connect(&m_pause, &QTimer::timeout, this, &WatchedFolders::tell);
}

WatchedFolders::~WatchedFolders() = default;

bool WatchedFolders::watch(const QString& path)
{
    return FileSystemWatcher::addPath(path);
}

bool WatchedFolders::addPath(const QString& path)
{
    const QFileInfo folder(path);
    // The base class writes a warning for each folder that it can't watch.
    if (m_isFull || !folder.isDir() || !folder.isReadable() || directories().contains(path))
        return false;
    if (watch(path)) {
        if (const QString target = folder.canonicalFilePath(); target != path)
            m_links.insert(path, target);
        return true;
    }
    m_isFull = folder.isDir();
    if (m_isFull && !std::exchange(m_hasToldFull, true) && onFull)
        onFull();
    return false;
}

QList<QString> WatchedFolders::removePaths(const QList<QString>& paths)
{
    for (const QString& path : paths) {
        m_changed.remove(path);
        m_links.remove(path);
        m_isFull = false; // there is room again
    }
    return FileSystemWatcher::removePaths(paths);
}

void WatchedFolders::onDirectoryChanged(const QString& path) const
{
    m_changed.insert(path);
    if (!m_pause.isActive())
        m_pause.start();
}

void WatchedFolders::tell()
{
    const QStringList watched = directories();
    for (const QString& path : QSet<QString>(m_changed)) {
        if (!watched.contains(path))
            addPath(path); // unless it is still gone
        // The system tells only one of the paths that lead to the same folder.
        const QString target = m_links.value(path, path);
        for (const QString& link : m_links.keys(target) + QStringList(target))
            if (watched.contains(link))
                m_changed.insert(link);
    }
    while (!m_changed.isEmpty()) {
        const QString path = *m_changed.begin();
        m_changed.erase(m_changed.begin());
        FileSystemWatcher::onDirectoryChanged(path);
    }
}
} // namespace workbench
