#include "sheetset/sheetsetreading.h"
#include "sheetset/sheetsettree.h"

#include <QElapsedTimer>
#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

// How the rows of folders and drawings come and go.
namespace workbench {
namespace {
constexpr int turn = 8; // milliseconds
using Phase = SheetSetReading::Phase;
} // namespace

void SheetSetTree::fetchMore(const QModelIndex& parent)
{
    velm::ISheetSetFileSystemTreeData* data = nodeAt(parent);
    if (!data || !data->canFetchMore())
        return;
    const QStringList paths = data->fetchChildren();
    const std::shared_ptr<SheetSetReading> reading = begin(parent);
    if (data->isFolder())
        list(reading);
    else
        takeListing(*reading, SheetSetListing(paths));
    readOnSoon();
}

void SheetSetTree::onDirectoryChanged(const QString& path)
{
    const QModelIndex folder = nearest(path);
    if (filePath(folder) == path && node(folder)->isFolder() && !canFetchMore(folder))
        follow(folder);
}

void SheetSetTree::follow(const QModelIndex& folder)
{
    if (const std::shared_ptr<SheetSetReading> reading = readingOf(folder))
        reading->isOutdated = true;
    else
        list(begin(folder));
    readOnSoon();
}

std::shared_ptr<SheetSetReading> SheetSetTree::readingOf(const QModelIndex& parent) const
{
    const auto reading = std::ranges::find_if(m_readings, [&](const auto& each) { return each->parent == parent; });
    return reading == m_readings.end() ? nullptr : *reading;
}

std::shared_ptr<SheetSetReading> SheetSetTree::begin(const QModelIndex& parent)
{
    m_readings.push_back(std::make_shared<SheetSetReading>(SheetSetReading{parent, ++m_readingCount}));
    return m_readings.back();
}

void SheetSetTree::list(const std::shared_ptr<SheetSetReading>& reading)
{
    reading->phase = Phase::Listing;
    reading->isOutdated = false;
    const QString folder = filePath(reading->parent);
    watcher()->addPath(folder);
    const auto job = [this, folder, filters = nameFilters(), files = static_cast<const SheetFiles*>(fileSystem()),
                      weak = std::weak_ptr(reading)](const std::stop_token&) -> Background::Result {
        std::optional<SheetSetListing> listing;
        if (const std::optional<QStringList> paths = files->list(folder, filters))
            listing.emplace(*paths);
        return [this, weak, listing] {
            const std::shared_ptr<SheetSetReading> reading = weak.lock();
            if (reading && reading->parent.isValid())
                takeListing(*reading, listing);
        };
    };
    m_listing.start(job, reading->priority);
}

/// No listing: it can't be read, or is no longer there, which the folder around it will tell.
void SheetSetTree::takeListing(SheetSetReading& reading, const std::optional<SheetSetListing>& listing)
{
    setLocked(reading.parent, !listing);
    reading.isListed = listing.has_value();
    reading.listing = listing.value_or(SheetSetListing());
    reading.next = 0;
    reading.gone.clear();
    // The rows of one that can't be read stay: nobody knows whether they are gone.
    reading.phase = listing ? Phase::Comparing : Phase::Appending;
}

/// Many may be to be read at once: together they get one turn.
void SheetSetTree::readOnSoon()
{
    if (!m_turn.isActive())
        readOn();
}

void SheetSetTree::readOn()
{
    if (m_isInTurn)
        return;
    noteReading();
    bool isBusy = true;
    {
        const QScopedValueRollback inTurn(m_isInTurn, true);
        QElapsedTimer timer;
        timer.start();
        while (isBusy && timer.elapsed() < turn)
            isBusy = step();
    }
    if (isBusy)
        m_turn.start();
    noteReading();
}

void SheetSetTree::noteReading()
{
    if (std::exchange(m_wasReading, isReading()) != isReading())
        Q_EMIT readingChanged();
}

/// False when there is nothing to do until another thread has done its part.
bool SheetSetTree::step()
{
    if (m_listing.finishOne())
        return true;
    // Others may begin in the course of a step, at the end.
    for (std::size_t place = m_readings.size(); place-- > 0;) {
        const std::shared_ptr<SheetSetReading> reading = m_readings[place];
        if (reading->parent.isValid() && !step(reading))
            continue;
        if (!reading->parent.isValid() || reading->phase == Phase::Ended)
            m_readings.erase(m_readings.begin() + static_cast<std::ptrdiff_t>(place));
        return true;
    }
    return m_layouts.reading().finishOne();
}

/// False when it waits for another thread.
bool SheetSetTree::step(const std::shared_ptr<SheetSetReading>& reading)
{
    switch (reading->phase) {
    case Phase::Listing:
    case Phase::Ended:
        return false;
    case Phase::Comparing:
        compare(*reading);
        return true;
    case Phase::Appending:
        if (reading->next < reading->listing.paths.size())
            append(reading);
        else if (reading->drawings.isEmpty())
            reading->phase = Phase::Removing;
        else if (reading->isOutdated)
            list(reading); // what else has changed doesn't wait for a large drawing
        else
            return false;
        return true;
    case Phase::Removing:
        if (!reading->gone.isEmpty())
            deleteItem(reading->parent, index(reading->gone.takeLast(), 0, reading->parent));
        else if (reading->isOutdated)
            list(reading);
        else
            end(*reading);
        return true;
    }
    return false;
}

/// Looks at one row.
void SheetSetTree::compare(SheetSetReading& reading)
{
    const int row = static_cast<int>(reading.next);
    if (row == rowCount(reading.parent)) {
        reading.listing.added.subtract(reading.drawings);
        reading.next = 0;
        reading.phase = Phase::Appending;
        return;
    }
    ++reading.next;
    const QModelIndex child = index(row, 0, reading.parent);
    const QString path = filePath(child);
    if (!reading.listing.added.remove(path))
        reading.gone.append(row);
    else if (m_locked.contains(path))
        follow(child);
}

/// Appends the row of one path, if it has none, or has its layouts read first.
void SheetSetTree::append(const std::shared_ptr<SheetSetReading>& reading)
{
    const QString path = reading->listing.paths[reading->next++];
    if (!reading->listing.added.contains(path))
        return;
    const bool isLayout = !node(reading->parent)->isFolder();
    if (isLayout || fileSystem()->isDirectory(path) || m_layouts.isKnown(path)) {
        appendItem(reading->parent, path);
        return;
    }
    reading->drawings.insert(path);
    const auto appendDrawing = [this, path, weak = std::weak_ptr(reading)] {
        const std::shared_ptr<SheetSetReading> reading = weak.lock();
        if (!reading || !reading->parent.isValid())
            return;
        reading->drawings.remove(path);
        appendItem(reading->parent, path);
    };
    m_layouts.read(path,
                   {appendDrawing, reading->priority, [weak = std::weak_ptr(reading)] { return !weak.expired(); }});
}

void SheetSetTree::end(SheetSetReading& reading)
{
    reading.phase = Phase::Ended;
    const QString folder = filePath(reading.parent);
    if (isBelow(m_wanted, folder) && nearest(m_wanted) == reading.parent)
        m_wanted.clear();
    if (!reading.isListed)
        return;
    const qsizetype gone = m_expanded.removeIf([&](const QString& path) {
        if (!isBelow(path, folder))
            return false;
        const qsizetype nameEnd = path.indexOf(u'/', folder.size() + (folder.endsWith(u'/') ? 0 : 1));
        return !reading.listing.present.contains(path.left(nameEnd));
    });
    if (gone > 0)
        Q_EMIT expansionChanged();
}
} // namespace workbench
