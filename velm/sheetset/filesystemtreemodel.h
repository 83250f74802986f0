#pragma once

#include "velm/models/treemodel/treebuilder.h"
#include "velm/models/treemodel/treemodel.h"
#include "velm/sheetset/filesystem.h"
#include "velm/sheetset/ifilesystemlistener.h"
#include "velm/sheetset/ifilesystemwatcher.h"

#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <memory>
#include <ranges>
#include <utility>

namespace velm {
/// A tree of what is on the disk below some root directories. A directory is read when its node is opened, and watched
/// from then on. A T knows its path, whether it has children and how to fetch their paths; a concrete model decides
/// which T stands for a path. The order is the disk's: a proxy sorts.
template <typename T>
class FileSystemTreeModel : public TreeModel<std::unique_ptr<T>>, public IFileSystemListener
{
    using Base = TreeModel<std::unique_ptr<T>>;

public:
    static constexpr QDir::Filters entryFilters = QDir::Files | QDir::AllDirs | QDir::NoDotAndDotDot;

    /// Becomes the watcher's listener. Null for either throws an OdError.
    FileSystemTreeModel(std::unique_ptr<IFileSystem> fileSystem, std::unique_ptr<IFileSystemWatcher> watcher)
        : m_fileSystem(std::move(fileSystem)), m_watcher(std::move(watcher))
    {
        checkNotNull(m_fileSystem.get());
        checkNotNull(m_watcher.get());
        m_watcher->setListener(this);
    }

    using Base::index;
    /// The node of exactly this path; invalid when there is none.
    QModelIndex index(const QString& path) const
    {
        return this->findInTree([&](const QModelIndex& node) { return filePath(node) == path; })
            .value_or(QModelIndex());
    }
    /// The node's path; empty for an invalid index.
    QString filePath(const QModelIndex& index) const
    {
        const T* node = nodeAt(index);
        return node ? node->path() : QString();
    }

    /// Adds a root, which takes the place of one below it, of the first if there are several. Invalid for a directory
    /// that doesn't exist or that a root covers.
    QModelIndex addDirectory(const QString& path)
    {
        if (!m_fileSystem->directoryExists(path))
            return {};
        QStringList roots;
        for (const QModelIndex& root : this->children({}))
            roots.append(filePath(root));
        for (QString ancestor = path; !ancestor.isEmpty(); ancestor = QFileInfo(ancestor).path()) {
            if (roots.contains(ancestor))
                return {};
            if (isDrive(ancestor) || QFileInfo(ancestor).path() == ancestor)
                break;
        }
        const auto below = std::ranges::find_if(roots, [&](const QString& root) { return root.contains(path); });
        if (below != roots.end())
            deleteItem({}, static_cast<int>(below - roots.begin()));
        return appendItem({}, path);
    }
    /// False for a node that isn't a root.
    bool removeDirectory(const QString& path)
    {
        const QModelIndex node = index(path);
        return node.isValid() && !node.parent().isValid() && deleteItem({}, node);
    }
    /// Opens the directories down to a path: the node of what exists of it.
    QModelIndex fetchDirectory(const QString& path)
    {
        auto [node, parts] = getIndexWithSubDirectories(path);
        for (const QString& part : std::as_const(parts)) {
            fetchIfPossible(node);
            const QList<QModelIndex> nodes = this->children(node);
            const auto child = std::ranges::find_if(nodes, [&](const QModelIndex& candidate) {
                const QStringList names = splitPath(filePath(candidate));
                return !names.isEmpty() && names.last() == part;
            });
            if (child == nodes.end())
                break;
            node = *child;
        }
        fetchIfPossible(node);
        return node;
    }
    /// The loaded node whose path agrees longest with this one, by characters from the start at each level: "ab" is
    /// near to "ac". Invalid for an empty tree.
    QModelIndex getNearestIndexByPath(const QString& path) const
    {
        QModelIndex node;
        for (;;) {
            QModelIndex nearest;
            std::ptrdiff_t most = 0;
            for (const QModelIndex& child : this->children(node)) {
                const QString childPath = filePath(child);
                if (childPath.size() > path.size())
                    continue;
                const std::ptrdiff_t agreeing = std::ranges::mismatch(childPath, path).in1 - childPath.begin();
                if (agreeing > most) {
                    most = agreeing;
                    nearest = child;
                }
            }
            if (!nearest.isValid())
                return node;
            node = nearest;
        }
    }
    /// The nearest node, and the parts of the path below it.
    std::pair<QModelIndex, QList<QString>> getIndexWithSubDirectories(const QString& path) const
    {
        const QModelIndex nearest = getNearestIndexByPath(path);
        return {nearest, splitPath(path).mid(splitPath(filePath(nearest)).size())};
    }
    /// Forgets all roots and stops watching.
    void clear()
    {
        m_watcher->removePaths(m_watcher->directories());
        this->reset();
    }

    const QStringList& nameFilters() const { return m_nameFilters; }
    /// For what is read from now on.
    void setNameFilters(const QList<QString>& nameFilters) { m_nameFilters = nameFilters; }
    IFileSystem* fileSystem() const { return m_fileSystem.get(); }
    IFileSystemWatcher* watcher() const { return m_watcher.get(); }

    bool hasChildren(const QModelIndex& parent = {}) const override
    {
        const T* node = nodeAt(parent);
        return node && node->hasChildren();
    }
    bool canFetchMore(const QModelIndex& parent) const override
    {
        const T* node = nodeAt(parent);
        return node && node->canFetchMore();
    }
    void fetchMore(const QModelIndex& parent) override
    {
        if (T* node = nodeAt(parent))
            for (const QString& path : node->fetchChildren())
                appendItem(parent, path);
    }
    /// What is new comes before what is gone goes.
    void onDirectoryChanged(const QString& path) override
    {
        const QPersistentModelIndex directory = index(path);
        if (!directory.isValid())
            return;
        const QList<QString> now = m_fileSystem->browseDirectory(path, m_nameFilters, entryFilters);
        const QSet<QString> present(now.begin(), now.end());
        QSet<QString> known;
        QList<int> gone;
        for (const QModelIndex& child : this->children(directory)) {
            const QString childPath = filePath(child);
            if (!present.contains(childPath))
                gone.append(child.row());
            known.insert(childPath);
        }
        // Whoever hears of a change may have taken the directory away, or changed its rows.
        for (const QString& entry : now)
            if (directory.isValid() && !known.contains(entry))
                appendItem(directory, entry);
        for (const int row : gone | std::views::reverse) {
            if (!directory.isValid())
                return;
            const std::optional<QModelIndex> child = this->child(directory, row);
            if (child && child->isValid() && !present.contains(filePath(*child)))
                deleteItem(directory, *child);
        }
    }
    /// Stops watching every directory whose path contains the node's, which all below it do. This must stay.
    bool deleteItem(const QModelIndex& parent, const QModelIndex& child) override
    {
        const QString path = filePath(child);
        QList<QString> watched = m_watcher->directories();
        watched.removeIf([&](const QString& directory) { return !directory.contains(path); });
        m_watcher->removePaths(watched);
        return Base::deleteItem(parent, child);
    }
    bool deleteItem(const QModelIndex& parent, int row) override
    {
        const std::optional<QModelIndex> child = this->child(parent, row);
        return child && child->isValid() && deleteItem(parent, *child);
    }

    /// Appends the node for a path; invalid when the path is nothing for this tree.
    virtual QModelIndex appendItem(const QModelIndex& parent, const QString& path) = 0;

protected:
    QModelIndex appendNode(const QModelIndex& parent, std::unique_ptr<T> node)
    {
        return Base::appendItem(parent, std::move(node));
    }
    /// The names in a path, by the system's separator.
    static QList<QString> splitPath(const QString& path)
    {
        return QDir::toNativeSeparators(path).split(QDir::separator(), Qt::SkipEmptyParts);
    }
    /// Null for an invalid index.
    T* nodeAt(const QModelIndex& index) const
    {
        const std::unique_ptr<T>* data = this->getData(index);
        return data ? data->get() : nullptr;
    }

private:
    void fetchIfPossible(const QModelIndex& node)
    {
        if (canFetchMore(node))
            fetchMore(node);
    }

    std::unique_ptr<IFileSystem> m_fileSystem;
    std::unique_ptr<IFileSystemWatcher> m_watcher;
    QStringList m_nameFilters;
};
} // namespace velm
