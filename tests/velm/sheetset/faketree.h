#pragma once

#include "velm/sheetset/sheetsetfilesystemtreemodel.h"

#include <QMap>

#include <functional>

/// A disk in memory that writes down which directories were read. Paths end in "/" for directories.
class FakeDisk : public velm::IFileSystem
{
public:
    QStringList entries; ///< in the order of the listing
    mutable QStringList browsed;
    mutable QStringList filters;
    std::function<void()> onBrowse;

    bool isDirectory(const QString& path) const override { return entries.contains(path + '/'); }
    bool isFile(const QString& path) const override { return entries.contains(path); }
    bool directoryExists(const QString& path) const override { return isDirectory(path); }
    QList<QString> browseDirectory(const QString& path, const QStringList& nameFilters,
                                   const QFlags<QDir::Filter>& wanted) const override
    {
        browsed += path;
        if (onBrowse)
            onBrowse();
        filters = nameFilters;
        filters += QString::number(wanted.toInt(), 16);
        QStringList found;
        for (const QString& entry : entries) {
            const QString name = entry.endsWith('/') ? entry.chopped(1) : entry;
            if (QFileInfo(name).path() == path && name != path)
                found += name;
        }
        return found;
    }
};

class FakeWatcher : public velm::IFileSystemWatcher
{
public:
    velm::IFileSystemListener* listener = nullptr; // not owned
    QStringList watched;
    QStringList removed;

    void setListener(velm::IFileSystemListener* newListener) override { listener = newListener; }
    bool addPath(const QString& path) override
    {
        watched += path;
        return true;
    }
    bool removePath(const QString& path) override { return watched.removeOne(path); }
    QList<QString> removePaths(const QList<QString>& paths) override
    {
        for (const QString& path : paths) {
            watched.removeOne(path);
            removed += path;
        }
        return {};
    }
    QList<QString> directories() const override { return watched; }
    void onDirectoryChanged(const QString& path) const override { listener->onDirectoryChanged(path); }
};

/// The host's tree over both.
class FakeTree : public velm::SheetSetFileSystemTreeModel
{
public:
    FakeTree() : FakeTree(std::make_unique<FakeDisk>(), std::make_unique<FakeWatcher>()) {}
    FakeTree(std::unique_ptr<FakeDisk> fakeDisk, std::unique_ptr<FakeWatcher> fakeWatcher)
        : SheetSetFileSystemTreeModel(std::move(fakeDisk), std::move(fakeWatcher)),
          disk(static_cast<FakeDisk&>(*fileSystem())), watch(static_cast<FakeWatcher&>(*watcher()))
    {}

    bool isModelViewDropValid() override { return dropValid; }
    QList<QString> getModelViewNames(const QString& drawingPath) override
    {
        asked += drawingPath;
        return views.value(drawingPath);
    }
    void open(const QString& path) { fetchMore(index(path)); }

    FakeDisk& disk;
    FakeWatcher& watch;
    QMap<QString, QStringList> views;
    QStringList asked;
    bool dropValid = false;
    using FileSystemTreeModel::splitPath;
};
