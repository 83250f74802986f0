#pragma once

#include "velm/sheetset/ifilesystemwatcher.h"

#include <QFileSystemWatcher>

namespace velm {
/// Watches directories on the disk. Changes are told from the event loop.
class VELM_EXPORT FileSystemWatcher : public QFileSystemWatcher, public IFileSystemWatcher
{
    Q_OBJECT
public:
    FileSystemWatcher();
    ~FileSystemWatcher() override;

    void setListener(IFileSystemListener* listener) override;
    bool addPath(const QString& path) override;
    bool removePath(const QString& path) override;
    QList<QString> removePaths(const QList<QString>& paths) override;
    QList<QString> directories() const override;
    void onDirectoryChanged(const QString& path) const override;

private:
    IFileSystemListener* m_listener = nullptr; // not owned
};
} // namespace velm
