#pragma once

#include "od/odapdocmanager.h"
#include "sheetset/sheetsettree.h"
#include "velm/sheetset/sheetsetfilesystemsorter.h"
#include "velm/table/sortfilterselectmodel.h"

#include <QFileSystemWatcher>

#include <optional>

namespace workbench {
/// What the page of sheet sets talks to: the sorted tree below folders that the user adds and removes. They and what is
/// expanded are kept for the next start. A folder that vanishes comes back as soon as it is there again.
class SheetSetController : public QObject, private OdApDocManagerReactor
{
    Q_OBJECT
    Q_PROPERTY(QAbstractItemModel* tree READ tree CONSTANT)
    Q_PROPERTY(QModelIndex currentIndex READ currentIndex WRITE setCurrentIndex NOTIFY currentIndexChanged)
    Q_PROPERTY(bool canRemove READ canRemove NOTIFY currentIndexChanged)
    Q_PROPERTY(bool hasDrawing READ hasDrawing NOTIFY drawingChanged)
    Q_PROPERTY(bool isReading READ isReading NOTIFY readingChanged)
    Q_PROPERTY(QStringList roots READ roots NOTIFY rootsChanged)
    Q_PROPERTY(QStringList missingRoots READ missingRoots NOTIFY rootsChanged)
    Q_PROPERTY(QString warning READ warning NOTIFY warningChanged)
public:
    /// The documents outlive the controller.
    explicit SheetSetController(OdApDocManager& documents,
                                std::unique_ptr<WatchedFolders> watcher = std::make_unique<WatchedFolders>(),
                                std::unique_ptr<SheetFiles> files = std::make_unique<SheetFiles>());
    ~SheetSetController() override;

    QAbstractItemModel* tree() { return &m_sorted; }
    SheetSetTree* source() { return &m_tree; }
    /// Of the sorted tree.
    QModelIndex currentIndex() const { return m_current; }
    /// What the user chooses takes the place of what is to be revealed.
    void setCurrentIndex(const QModelIndex& index);
    /// Whether the current row is a root.
    bool canRemove() const { return m_current.isValid() && !m_current.parent().isValid(); }
    bool hasDrawing() const { return m_documents.curDocument() != nullptr; }
    bool isReading() const { return m_tree.isReading(); }
    const QStringList& roots() const { return m_roots; }
    /// Those that aren't on the disk at present.
    const QStringList& missingRoots() const { return m_missing; }
    /// What the user should know; empty when all is well.
    const QString& warning() const { return m_warning; }

    /// False, with nothing added, for what is no folder or lies in a root. Roots that lie in the folder go.
    bool addRoot(const QString& folder);
    /// Opens the folders of a path and makes its row the current one as soon as it is there, unless the user has
    /// chosen another by then.
    void reveal(const QString& path);

    /// Shows a drawing and, for a layout, a part of it: all for an empty box.
    std::function<void(const QString& drawing, std::optional<Box> shown)> show;
    std::function<void()> onFolderWanted;                  ///< the user wants to choose one to add
    std::function<void(const QString& warning)> onWarning; ///< there is a new one

    /// Whether the mouse is over the drawing area.
    std::function<bool()>& isOverCanvas() { return m_tree.isDropValid; }

public Q_SLOTS:
    void askForFolder();
    /// Adds the folder of the current drawing, when it is in no root, and reveals the drawing.
    void goToDrawing();
    void removeCurrent();
    void removeRoot(const QString& path);
    void reload();
    void dismissWarning();
    /// Opens a drawing, or a layout in its drawing. False for a folder.
    bool activate(const QModelIndex& index);
    bool isDropValid(const QModelIndex& index) const;
    /// Shows a layout when the mouse is where it may be dropped.
    void drop(const QModelIndex& index);

Q_SIGNALS:
    void currentIndexChanged();
    void drawingChanged();
    void readingChanged();
    void rootsChanged();
    void warningChanged();

private:
    void documentBecameCurrent(OdApDocument* document) override;
    void followRoots();
    void watchParents();
    void storeRoots() const;
    void storeExpanded();
    void warn(const QString& warning);
    bool isInRoot(const QString& path) const;

    OdApDocManager& m_documents;
    SheetSetTree m_tree;
    velm::SheetSetFileSystemSorter m_sorter{&m_tree};
    velm::SortFilterSelectModel m_sorted;
    QPersistentModelIndex m_current;
    QStringList m_roots;
    QStringList m_missing;
    QString m_warning;
    int m_activations = 0;
    QFileSystemWatcher m_parents; // of the roots
    QTimer m_rootPause;
    QTimer m_storePause;
};
} // namespace workbench
