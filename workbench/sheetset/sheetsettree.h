#pragma once

#include "sheetset/layoutcache.h"
#include "sheetset/sheetfiles.h"
#include "sheetset/watchedfolders.h"
#include "velm/sheetset/sheetsetfilesystemtreemodel.h"

#include <memory>
#include <vector>

namespace workbench {
struct SheetSetListing;
struct SheetSetReading;

/// Whether a path is somewhere in a folder.
bool isBelow(const QString& path, const QString& folder);

/// Folders with DXF drawings and the layouts in them. Folders are listed and drawings are read on other threads; rows
/// come and go bit by bit, so that the program can be used meanwhile. The row of a drawing comes when its layouts are
/// known.
class SheetSetTree : public velm::SheetSetFileSystemTreeModel
{
    Q_OBJECT
public:
    explicit SheetSetTree(std::unique_ptr<WatchedFolders> watcher = std::make_unique<WatchedFolders>(),
                          std::unique_ptr<SheetFiles> files = std::make_unique<SheetFiles>());
    ~SheetSetTree() override;

    bool isModelViewDropValid() override { return isDropValid && isDropValid(); }
    /// As they were read last.
    QList<QString> getModelViewNames(const QString& drawingPath) override;
    /// Tells what the layout of a model view's path shows of the model: empty for all of it. At once, or when the
    /// drawing has been read anew.
    void askForShown(const QString& modelView, const std::function<void(const Box& shown)>& answer);

    /// The base class's root has none, which views need not cope with.
    bool hasChildren(const QModelIndex& parent = {}) const override;
    /// A folder that can't be read is shown as locked.
    QVariant dataImpl(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    void fetchMore(const QModelIndex& parent) override;
    /// Also for an open folder that isn't watched: that is tried again. A folder that isn't open is left alone.
    void onDirectoryChanged(const QString& path) override;
    /// What is expanded there is so again when it comes back with its root, and else forgotten.
    bool deleteItem(const QModelIndex& parent, const QModelIndex& child) override;
    using SheetSetFileSystemTreeModel::deleteItem;
    /// Whether rows are still to come or to go.
    bool isReading() const { return !m_readings.empty(); }
    /// Whether rows come and go right now.
    bool isInTurn() const { return m_isInTurn; }

    /// Opens the folders on the way to a path; found() tells when its row is there. Only the last wish counts, and it
    /// is forgotten when there is no such path. An empty one takes back the last.
    void seek(const QString& path);
    bool isSeeking() const { return !m_wanted.isEmpty(); }
    /// Forgets what is in the roots; a view reads again what is expanded. A path that is sought still is.
    void reload();
    /// Takes a root away; what is expanded there is forgotten.
    void removeRoot(const QString& path);
    /// The paths of the rows that are expanded, and of those that are to be as soon as they are there.
    QStringList expandedPaths() const;
    /// Expands the rows of these paths as soon as they are there. One that isn't in its folder is forgotten.
    void setExpandedPaths(const QStringList& paths);

    std::function<bool()> isDropValid; ///< whether the mouse is where a model view may be dropped

Q_SIGNALS:
    void expansionChanged();
    void readingChanged();
    void found(const QModelIndex& row);

protected:
    QModelIndex appendItem(const QModelIndex& parent, const QString& path) override;

private:
    QModelIndex nearest(const QString& path) const;
    void approach(const QModelIndex& row);
    void setLocked(const QModelIndex& folder, bool isLocked);

    void follow(const QModelIndex& folder);
    std::shared_ptr<SheetSetReading> readingOf(const QModelIndex& parent) const;
    std::shared_ptr<SheetSetReading> begin(const QModelIndex& parent);
    void list(const std::shared_ptr<SheetSetReading>& reading);
    void takeListing(SheetSetReading& reading, const std::optional<SheetSetListing>& listing);
    void readOnSoon();
    void readOn();
    void noteReading();
    bool step();
    bool step(const std::shared_ptr<SheetSetReading>& reading);
    void compare(SheetSetReading& reading);
    void append(const std::shared_ptr<SheetSetReading>& reading);
    void end(SheetSetReading& reading);

    std::vector<std::shared_ptr<SheetSetReading>> m_readings;
    int m_readingCount = 0; // of all that ever began
    QTimer m_turn;
    bool m_isInTurn = false;
    bool m_wasReading = false;
    QSet<QString> m_expanded;
    QSet<QString> m_locked; // folders that can't be read
    QString m_wanted;       // path that is sought
    LayoutCache m_layouts;
    Background m_listing{1};
};
} // namespace workbench
