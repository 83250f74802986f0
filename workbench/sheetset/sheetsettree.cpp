#include "sheetset/sheetsettree.h"

#include "sheetset/layoutdata.h"
#include "velm/bridge/conversions.h"

#include <QElapsedTimer>
#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace workbench {
namespace {
constexpr int turn = 8;  // milliseconds of reading
constexpr int pause = 2; // milliseconds, in which the window paints and takes clicks

void forget(const QString& path, QSet<QString>& paths)
{
    paths.removeIf([&](const QString& other) { return other == path || isBelow(other, path); });
}
} // namespace

bool isBelow(const QString& path, const QString& folder)
{
    return path.startsWith(folder.endsWith(u'/') ? folder : folder + u'/');
}

SheetSetTree::SheetSetTree(std::unique_ptr<WatchedFolders> watcher)
    : SheetSetFileSystemTreeModel(std::make_unique<velm::FileSystem>(), std::move(watcher))
{
    setNameFilters({QStringLiteral("*.dxf")});
    m_turn.setSingleShot(true);
    m_turn.setInterval(pause);
    connect(&m_turn, &QTimer::timeout, this, &SheetSetTree::readOn);
}

SheetSetTree::~SheetSetTree() = default;

QList<QString> SheetSetTree::getModelViewNames(const QString& drawingPath)
{
    QList<QString> names;
    for (const DxfLayout& layout : m_layouts.layouts(drawingPath))
        names.append(velm::toQt(layout.name));
    return names;
}

Box SheetSetTree::shownBy(const QString& modelView)
{
    const QFileInfo path(modelView);
    const OdString name = velm::odFromQt(path.fileName());
    const std::vector<DxfLayout>& layouts = m_layouts.layouts(path.path());
    const auto layout = std::ranges::find(layouts, name, &DxfLayout::name);
    return layout == layouts.end() ? Box() : layout->shown;
}

QModelIndex SheetSetTree::appendItem(const QModelIndex& parent, const QString& path)
{
    const velm::ISheetSetFileSystemTreeData* owner = node(parent);
    const bool isLayout = owner && !owner->isFolder() && !isModelView(path);
    const QModelIndex index = isLayout ? appendNode(parent, std::make_unique<LayoutData>(path, *this))
                                       : SheetSetFileSystemTreeModel::appendItem(parent, path);
    if (index.isValid() && m_wanted.remove(path))
        setWantsToBeExpanded(index, true);
    return index;
}

bool SheetSetTree::hasChildren(const QModelIndex& parent) const
{
    return parent.isValid() ? SheetSetFileSystemTreeModel::hasChildren(parent) : rowCount() > 0;
}

QVariant SheetSetTree::dataImpl(const QModelIndex& index, int role) const
{
    const QVariant value = SheetSetFileSystemTreeModel::dataImpl(index, role);
    // The root of a drive has no name.
    return role == Qt::DisplayRole && value.isValid() && value.toString().isEmpty() ? filePath(index) : value;
}

bool SheetSetTree::setData(const QModelIndex& index, const QVariant& value, int role)
{
    const bool isSet = SheetSetFileSystemTreeModel::setData(index, value, role);
    if (isSet && role == velm::getWantsToBeExpandedRole())
        Q_EMIT expansionChanged();
    return isSet;
}

void SheetSetTree::fetchMore(const QModelIndex& parent)
{
    if (m_readsAtOnce) {
        SheetSetFileSystemTreeModel::fetchMore(parent);
    } else if (velm::ISheetSetFileSystemTreeData* data = nodeAt(parent)) {
        m_readings.push_back({parent, data->fetchChildren()});
        Q_EMIT readingChanged();
        readOn();
    }
}

void SheetSetTree::readOn()
{
    if (m_isInTurn)
        return;
    {
        const QScopedValueRollback inTurn(m_isInTurn, true);
        QElapsedTimer timer;
        timer.start();
        while (!m_readings.empty() && timer.elapsed() < turn) {
            // What was opened last is what the user looks at.
            Reading& reading = m_readings.back();
            if (reading.parent.isValid() && reading.next < reading.paths.size()) {
                appendItem(reading.parent, reading.paths[reading.next++]);
                continue;
            }
            const Reading ended = std::move(reading);
            m_readings.pop_back();
            end(ended);
        }
    }
    if (isReading())
        m_turn.start();
    else
        Q_EMIT readingChanged();
}

void SheetSetTree::end(const Reading& reading)
{
    if (reading.parent.isValid() && reading.isOutdated)
        SheetSetFileSystemTreeModel::onDirectoryChanged(filePath(reading.parent));
}

void SheetSetTree::onDirectoryChanged(const QString& path)
{
    // A comparison would add what is still to be read.
    for (Reading& reading : m_readings) {
        if (filePath(reading.parent) != path)
            continue;
        reading.isOutdated = true;
        return;
    }
    SheetSetFileSystemTreeModel::onDirectoryChanged(path);
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
    if (comesBack)
        std::as_const(*this).traverseTree(
            [this](const QModelIndex& index) {
                if (wantsToBeExpanded(index))
                    m_wanted.insert(filePath(index));
                return velm::TreeWalk::Continue;
            },
            child);
    else
        forget(path, m_wanted);
    QStringList others = watcher()->directories();
    others.removeIf(
        [&](const QString& other) { return !other.contains(path) || other == path || isBelow(other, path); });
    const bool isDeleted = SheetSetFileSystemTreeModel::deleteItem(parent, child);
    // The watch of those that only hold the text of the path has ended, too, and what has changed in them is lost.
    for (const QString& other : std::as_const(others)) {
        watcher()->addPath(other);
        watcher()->onDirectoryChanged(other);
    }
    if (!comesBack)
        Q_EMIT expansionChanged();
    return isDeleted;
}

QModelIndex SheetSetTree::open(const QString& path)
{
    const QScopedValueRollback atOnce(m_readsAtOnce, true);
    for (Reading& reading : m_readings) {
        const bool isOnTheWay = reading.parent.isValid() && path.startsWith(filePath(reading.parent));
        while (isOnTheWay && reading.next < reading.paths.size())
            appendItem(reading.parent, reading.paths[reading.next++]);
    }
    return fetchDirectory(path);
}

void SheetSetTree::reload()
{
    QStringList roots;
    for (const QModelIndex& root : children({}))
        roots.append(filePath(root));
    const QStringList expanded = expandedPaths();
    const QSet<QString> unread = std::exchange(m_wanted, QSet<QString>(expanded.begin(), expanded.end()));
    clear();
    const QScopedValueRollback atOnce(m_readsAtOnce, true);
    for (const QString& root : std::as_const(roots))
        addDirectory(root);
    // A folder comes before what is in it.
    for (const QString& path : expanded)
        if (const QModelIndex row = index(path); !unread.contains(path) && canFetchMore(row))
            fetchMore(row);
}

void SheetSetTree::removeRoot(const QString& path)
{
    removeDirectory(path);
    forget(path, m_wanted);
}

QStringList SheetSetTree::expandedPaths()
{
    QList<QModelIndex> expanded;
    saveExpandedState(expanded);
    QStringList paths = m_wanted.values();
    for (const QModelIndex& index : std::as_const(expanded))
        paths.append(filePath(index));
    paths.sort();
    return paths;
}

void SheetSetTree::setExpandedPaths(const QStringList& paths)
{
    m_wanted = QSet<QString>(paths.begin(), paths.end());
}
} // namespace workbench
