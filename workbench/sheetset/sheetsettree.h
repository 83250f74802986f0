#pragma once

#include "sheetset/layoutcache.h"
#include "sheetset/watchedfolders.h"
#include "velm/sheetset/sheetsetfilesystemtreemodel.h"

#include <QPersistentModelIndex>

#include <deque>

namespace workbench {
/// Whether a path is somewhere in a folder.
bool isBelow(const QString& path, const QString& folder);

/// Folders with DXF drawings and the layouts in them. What is in a folder that is opened comes bit by bit, so that the
/// program can be used while a large one is read.
class SheetSetTree : public velm::SheetSetFileSystemTreeModel
{
    Q_OBJECT
public:
    explicit SheetSetTree(std::unique_ptr<WatchedFolders> watcher = std::make_unique<WatchedFolders>());
    ~SheetSetTree() override;

    bool isModelViewDropValid() override { return isDropValid && isDropValid(); }
    QList<QString> getModelViewNames(const QString& drawingPath) override;
    /// What the layout of a model view's path shows of the model; empty for all of it.
    Box shownBy(const QString& modelView);

    /// The base class's root has none, which views need not cope with.
    bool hasChildren(const QModelIndex& parent = {}) const override;
    QVariant dataImpl(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    void fetchMore(const QModelIndex& parent) override;
    void onDirectoryChanged(const QString& path) override;
    /// What is expanded there is so again when it comes back with its root, and else forgotten.
    bool deleteItem(const QModelIndex& parent, const QModelIndex& child) override;
    using SheetSetFileSystemTreeModel::deleteItem;
    bool isReading() const { return !m_readings.empty(); }

    /// As fetchDirectory(), at once.
    QModelIndex open(const QString& path);
    /// Forgets the drawing folders and reads them again at once, with the same ones open.
    void reload();
    /// Takes a root away; what is expanded there is forgotten.
    void removeRoot(const QString& path);
    /// The paths of the rows that are expanded, and of those that are to be as soon as they are there.
    QStringList expandedPaths();
    /// Expands the rows of these paths as soon as they are there.
    void setExpandedPaths(const QStringList& paths);

    std::function<bool()> isDropValid; ///< whether the mouse is where a model view may be dropped

Q_SIGNALS:
    void expansionChanged();
    void readingChanged();

protected:
    QModelIndex appendItem(const QModelIndex& parent, const QString& path) override;

private:
    /// A folder or drawing of which a part isn't in the tree yet.
    struct Reading
    {
        QPersistentModelIndex parent;
        QStringList paths;
        qsizetype next = 0;
        bool isOutdated = false; ///< it has changed since
    };

    void readOn();
    void end(const Reading& reading);

    LayoutCache m_layouts;
    std::deque<Reading> m_readings;
    QTimer m_turn;
    QSet<QString> m_wanted; // paths of rows that are to be expanded and aren't there
    bool m_isInTurn = false;
    bool m_readsAtOnce = false;
};
} // namespace workbench
