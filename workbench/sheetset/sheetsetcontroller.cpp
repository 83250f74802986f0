#include "sheetset/sheetsetcontroller.h"

#include "ut/config.h"
#include "velm/bridge/conversions.h"

#include <algorithm>

namespace workbench {
namespace {
using Tree = velm::SheetSetFileSystemTreeModel;
constexpr int pause = 100; // milliseconds
const OdString rootsKey = L"SheetSets/Roots";
const OdString expandedKey = L"SheetSets/Expanded";

QStringList load(const OdString& key)
{
    OdArray<OdString> list;
    ut::Config::loadListFromRegistry(ut::ECfgGroup::Interface, key, list);
    return velm::toQtStringList(list);
}

void store(const OdString& key, const QStringList& list)
{
    ut::Config::saveListToRegistry(ut::ECfgGroup::Interface, key, velm::odFromQtList(list), 1);
}

/// A folder above a path that can be watched.
QString parentOf(const QString& path)
{
    QString parent = QFileInfo(path).path();
    while (!QFileInfo::exists(parent) && parent != QFileInfo(parent).path())
        parent = QFileInfo(parent).path();
    return parent;
}
} // namespace

SheetSetController::SheetSetController(OdApDocManager& documents, std::unique_ptr<WatchedFolders> watcher,
                                       std::unique_ptr<SheetFiles> files)
    : m_documents(documents), m_tree(std::move(watcher), std::move(files)), m_roots(load(rootsKey))
{
    static_cast<WatchedFolders*>(m_tree.watcher())->onFull = [this] {
        warn(tr("The system can't watch any more folders. Those opened from now on show changes after Reload only."));
    };
    m_sorted.setSorter(&m_sorter);
    // Rows come into their places one by one.
    m_sorted.setDynamicSortFilter(true);
    m_sorted.setSourceModel(&m_tree);
    const auto sort = [this] { m_sorted.doSort(0, true, true); };
    sort();
    connect(&m_tree, &QAbstractItemModel::modelReset, this, sort); // which loses it
    connect(&m_tree, &SheetSetTree::readingChanged, this, &SheetSetController::readingChanged);
    connect(&m_tree, &SheetSetTree::found, this,
            [this](const QModelIndex& row) { setCurrentIndex(m_sorted.mapFromSource(row)); });

    for (QTimer* timer : {&m_rootPause, &m_storePause}) {
        timer->setSingleShot(true);
        timer->setInterval(pause);
    }
    connect(&m_tree, &SheetSetTree::expansionChanged, &m_storePause, qOverload<>(&QTimer::start));
    connect(&m_storePause, &QTimer::timeout, this, &SheetSetController::storeExpanded);
    connect(&m_parents, &QFileSystemWatcher::directoryChanged, &m_rootPause, qOverload<>(&QTimer::start));
    connect(&m_rootPause, &QTimer::timeout, this, &SheetSetController::followRoots);

    m_tree.setExpandedPaths(load(expandedKey));
    followRoots();
    m_documents.addReactor(this);
}

SheetSetController::~SheetSetController()
{
    m_documents.removeReactor(this);
    if (m_storePause.isActive())
        storeExpanded();
}

void SheetSetController::documentBecameCurrent(OdApDocument* /*document*/)
{
    Q_EMIT drawingChanged();
}

void SheetSetController::setCurrentIndex(const QModelIndex& index)
{
    if (!m_tree.isInTurn()) // otherwise a row has gone, and its neighbour takes its place
        m_tree.seek({});
    if (index == m_current)
        return;
    m_current = index;
    Q_EMIT currentIndexChanged();
}

bool SheetSetController::isInRoot(const QString& path) const
{
    return std::ranges::any_of(m_roots, [&](const QString& root) { return path == root || isBelow(path, root); });
}

bool SheetSetController::addRoot(const QString& folder)
{
    const QString path = QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
    if (!QFileInfo(path).isDir() || isInRoot(path))
        return false;
    // The tree itself would replace only one of them.
    for (const QString& root : QStringList(m_roots))
        if (isBelow(root, path)) {
            m_tree.removeDirectory(root);
            m_roots.removeOne(root);
        }
    m_roots.append(path);
    storeRoots();
    followRoots();
    return true;
}

void SheetSetController::removeCurrent()
{
    if (canRemove())
        removeRoot(m_tree.filePath(m_sorted.mapToSource(m_current)));
}

void SheetSetController::removeRoot(const QString& path)
{
    m_tree.removeRoot(path);
    m_roots.removeOne(path);
    storeRoots();
    storeExpanded();
    followRoots();
}

/// Brings the tree into step with which roots there are on the disk.
void SheetSetController::followRoots()
{
    const auto isShown = [this](const QString& root) {
        const QList<QModelIndex> rows = m_tree.children({});
        return std::ranges::any_of(rows, [&](const QModelIndex& row) { return m_tree.filePath(row) == root; });
    };
    m_missing.clear();
    for (const QString& root : std::as_const(m_roots))
        if (!QFileInfo(root).isDir()) {
            m_missing.append(root);
            m_tree.removeDirectory(root);
        }
    // A new one takes the place of a longer one whose path only holds its text, which is then added again.
    QStringList present = m_roots;
    std::ranges::stable_sort(present, {}, &QString::size);
    for (const QString& root : present + present)
        if (!m_missing.contains(root) && !isShown(root))
            m_tree.addDirectory(root);
    // One that couldn't be read, or was away for a moment.
    const QStringList watched = m_tree.watcher()->directories();
    for (const QString& root : std::as_const(m_roots))
        if (!watched.contains(root))
            m_tree.onDirectoryChanged(root);
    watchParents();
    Q_EMIT rootsChanged();
    Q_EMIT currentIndexChanged(); // a row may have become a root
}

void SheetSetController::watchParents()
{
    QStringList parents;
    for (const QString& root : std::as_const(m_roots))
        if (const QString parent = parentOf(root); !parents.contains(parent))
            parents.append(parent);
    const QStringList watched = m_parents.directories();
    for (const QString& parent : watched)
        if (!parents.contains(parent))
            m_parents.removePath(parent);
    for (const QString& parent : std::as_const(parents))
        if (!watched.contains(parent) && QFileInfo(parent).isReadable())
            m_parents.addPath(parent);
}

void SheetSetController::storeRoots() const
{
    store(rootsKey, m_roots);
}

void SheetSetController::storeExpanded()
{
    store(expandedKey, m_tree.expandedPaths());
}

void SheetSetController::warn(const QString& warning)
{
    m_warning = warning;
    Q_EMIT warningChanged();
    if (!warning.isEmpty() && onWarning)
        onWarning(warning);
}

void SheetSetController::dismissWarning()
{
    warn({});
}

void SheetSetController::askForFolder()
{
    if (onFolderWanted)
        onFolderWanted();
}

void SheetSetController::goToDrawing()
{
    if (!hasDrawing())
        return;
    const QString drawing = velm::toQt(m_documents.curDocument()->fileName());
    addRoot(QFileInfo(drawing).path());
    reveal(drawing);
}

void SheetSetController::reveal(const QString& path)
{
    m_tree.seek(path);
}

void SheetSetController::reload()
{
    const QString current = m_tree.filePath(m_sorted.mapToSource(m_current));
    m_tree.reload();
    followRoots();
    if (!m_tree.isSeeking())
        reveal(current);
}

bool SheetSetController::activate(const QModelIndex& index)
{
    const QModelIndex row = m_sorted.mapToSource(index);
    if (!row.isValid() || m_tree.node(row)->isFolder())
        return false;
    const QString path = m_tree.filePath(row);
    if (!show)
        return true;
    const int activation = ++m_activations;
    const auto showLayout = [this, path, activation](const Box& shown) {
        // The user may have gone on while the drawing was read.
        if (activation == m_activations)
            show(QFileInfo(path).path(), shown);
    };
    if (row.data(Tree::DragValidRole).toBool())
        m_tree.askForShown(path, showLayout);
    else
        show(path, {});
    return true;
}

bool SheetSetController::isDropValid(const QModelIndex& index) const
{
    return index.data(Tree::DropValidRole).toBool();
}

void SheetSetController::drop(const QModelIndex& index)
{
    if (isDropValid(index))
        activate(index);
}
} // namespace workbench
