#include "sheetset/sheetsettree.h"

#include "sheetset/layoutdata.h"
#include "sheetset/sheetsetreading.h"
#include "velm/bridge/conversions.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace workbench {
namespace {
constexpr int pause = 2; // milliseconds between two turns, in which the window paints and takes clicks

/// How many there were.
qsizetype forget(const QString& path, QSet<QString>& paths)
{
    return paths.removeIf([&](const QString& other) { return other == path || isBelow(other, path); });
}
} // namespace

bool isBelow(const QString& path, const QString& folder)
{
    return path.size() > folder.size() && path.startsWith(folder) &&
           (folder.endsWith(u'/') || path[folder.size()] == u'/');
}

SheetSetTree::SheetSetTree(std::unique_ptr<WatchedFolders> watcher, std::unique_ptr<SheetFiles> files)
    : SheetSetFileSystemTreeModel(std::move(files), std::move(watcher))
{
    setNameFilters({QStringLiteral("*.dxf")});
    m_turn.setSingleShot(true);
    m_turn.setInterval(pause);
    connect(&m_turn, &QTimer::timeout, this, &SheetSetTree::readOn);
    for (const Background* background : {&m_listing, &m_layouts.reading()})
        connect(background, &Background::ready, this, &SheetSetTree::readOnSoon);
}

SheetSetTree::~SheetSetTree() = default;

QList<QString> SheetSetTree::getModelViewNames(const QString& drawingPath)
{
    QList<QString> names;
    for (const DxfLayout& layout : m_layouts.layouts(drawingPath))
        names.append(velm::toQt(layout.name));
    return names;
}

void SheetSetTree::askForShown(const QString& modelView, const std::function<void(const Box&)>& answer)
{
    const QFileInfo path(modelView);
    const auto tell = [this, drawing = path.path(), name = velm::odFromQt(path.fileName()), answer] {
        const std::vector<DxfLayout> layouts = m_layouts.layouts(drawing);
        const auto layout = std::ranges::find(layouts, name, &DxfLayout::name);
        answer(layout == layouts.end() ? Box() : layout->shown);
    };
    if (m_layouts.isKnown(path.path()))
        tell();
    else
        m_layouts.read(path.path(), {tell, std::numeric_limits<int>::max(), [] { return true; }});
}

QModelIndex SheetSetTree::appendItem(const QModelIndex& parent, const QString& path)
{
    const velm::ISheetSetFileSystemTreeData* owner = node(parent);
    const bool isLayout = owner && !owner->isFolder() && !isModelView(path);
    const QModelIndex index = isLayout ? appendNode(parent, std::make_unique<LayoutData>(path, *this))
                                       : SheetSetFileSystemTreeModel::appendItem(parent, path);
    if (!index.isValid())
        return index;
    if (m_expanded.contains(path))
        setWantsToBeExpanded(index, true);
    if (path == m_wanted || isBelow(m_wanted, path))
        approach(index);
    return index;
}

bool SheetSetTree::hasChildren(const QModelIndex& parent) const
{
    return parent.isValid() ? SheetSetFileSystemTreeModel::hasChildren(parent) : rowCount() > 0;
}

QVariant SheetSetTree::dataImpl(const QModelIndex& index, int role) const
{
    const bool tellsOfLock = role == IconRole || role == Qt::ToolTipRole;
    if (tellsOfLock && m_locked.contains(filePath(index)))
        return role == IconRole ? QStringLiteral("lock.svg") : tr("%1 can't be read.").arg(filePath(index));
    const QVariant value = SheetSetFileSystemTreeModel::dataImpl(index, role);
    // The root of a drive has no name.
    return role == Qt::DisplayRole && value.isValid() && value.toString().isEmpty() ? filePath(index) : value;
}

bool SheetSetTree::setData(const QModelIndex& index, const QVariant& value, int role)
{
    const bool isSet = SheetSetFileSystemTreeModel::setData(index, value, role);
    if (isSet && role == velm::getWantsToBeExpandedRole()) {
        if (value.toBool())
            m_expanded.insert(filePath(index));
        else
            m_expanded.remove(filePath(index));
        Q_EMIT expansionChanged();
    }
    return isSet;
}

void SheetSetTree::setLocked(const QModelIndex& folder, bool isLocked)
{
    const QString path = filePath(folder);
    if (m_locked.contains(path) == isLocked)
        return;
    if (isLocked)
        m_locked.insert(path);
    else
        m_locked.remove(path);
    signalChange(folder, {IconRole, Qt::ToolTipRole});
}

/// The row of a path, or of as much of the way to it as there is.
QModelIndex SheetSetTree::nearest(const QString& path) const
{
    QModelIndex found;
    for (int row = 0; row < rowCount(found);) {
        const QModelIndex child = index(row, 0, found);
        const QString& childPath = node(child)->path();
        if (childPath == path)
            return child;
        const bool isOnTheWay = isBelow(path, childPath);
        row = isOnTheWay ? 0 : row + 1;
        if (isOnTheWay)
            found = child;
    }
    return found;
}

void SheetSetTree::seek(const QString& path)
{
    m_wanted = path;
    if (const QModelIndex row = path.isEmpty() ? QModelIndex() : nearest(path); row.isValid())
        approach(row);
    else
        m_wanted.clear();
}

void SheetSetTree::approach(const QModelIndex& row)
{
    if (filePath(row) == m_wanted) {
        m_wanted.clear();
        Q_EMIT found(row);
    } else if (canFetchMore(row)) {
        fetchMore(row);
    } else if (!readingOf(row)) {
        if (node(row)->isFolder())
            follow(row); // it may have come just now
        else
            m_wanted.clear();
    }
}

bool SheetSetTree::deleteItem(const QModelIndex& parent, const QModelIndex& child)
{
    const QString path = filePath(child);
    if (path.isEmpty())
        return false;
    QModelIndex root = child;
    while (root.parent().isValid())
        root = root.parent();
    const bool comesBack = root == child || !fileSystem()->directoryExists(filePath(root));
    forget(path, m_locked);
    QStringList others = watcher()->directories();
    others.removeIf(
        [&](const QString& other) { return !other.contains(path) || other == path || isBelow(other, path); });
    const bool isDeleted = SheetSetFileSystemTreeModel::deleteItem(parent, child);
    // The watch of those that only hold the text of the path has ended, too, and what has changed in them is lost.
    for (const QString& other : std::as_const(others)) {
        watcher()->addPath(other);
        watcher()->onDirectoryChanged(other);
    }
    if (!comesBack && forget(path, m_expanded) > 0)
        Q_EMIT expansionChanged();
    if (isReading())
        m_turn.start(); // some may have ended with this
    return isDeleted;
}

void SheetSetTree::reload()
{
    QStringList roots;
    for (const QModelIndex& root : children({}))
        roots.append(filePath(root));
    m_locked.clear();
    clear();
    for (const QString& root : std::as_const(roots))
        addDirectory(root);
    m_turn.start();
}

void SheetSetTree::removeRoot(const QString& path)
{
    removeDirectory(path);
    forget(path, m_expanded);
    if (m_wanted == path || isBelow(m_wanted, path))
        m_wanted.clear();
}

QStringList SheetSetTree::expandedPaths() const
{
    QStringList paths = m_expanded.values();
    paths.sort();
    return paths;
}

void SheetSetTree::setExpandedPaths(const QStringList& paths)
{
    m_expanded = QSet<QString>(paths.begin(), paths.end());
}
} // namespace workbench
