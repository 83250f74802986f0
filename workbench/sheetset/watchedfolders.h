#pragma once

#include "velm/sheetset/filesystemwatcher.h"

#include <QHash>
#include <QSet>
#include <QTimer>

#include <functional>

namespace workbench {
/// Watches the folders of the sheet sets. A storm of changes in a folder is told as one. A folder that was removed and
/// made again in the meantime is watched again, and one that is watched under several paths, through links, changes
/// under all of them.
class WatchedFolders : public velm::FileSystemWatcher
{
    Q_OBJECT
public:
    WatchedFolders();
    ~WatchedFolders() override;

    /// False for a folder that can't be read, is watched already, or is one more than the system can watch.
    bool addPath(const QString& path) override;
    QList<QString> removePaths(const QList<QString>& paths) override;
    void onDirectoryChanged(const QString& path) const override;

    std::function<void()> onFull; ///< the system can't watch as many folders; called once

protected:
    virtual bool watch(const QString& path);

private:
    void tell();

    mutable QSet<QString> m_changed;
    mutable QTimer m_pause;
    QHash<QString, QString> m_links; // what watched paths that lead through links stand for
    bool m_isFull = false;
    bool m_hasToldFull = false;
};
} // namespace workbench
