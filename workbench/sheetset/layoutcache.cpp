#include "sheetset/layoutcache.h"

#include "velm/bridge/conversions.h"

#include <QFileInfo>

namespace workbench {
bool LayoutCache::isKnown(const QString& drawing) const
{
    const auto entry = m_entries.constFind(drawing);
    const QFileInfo file(drawing);
    return entry != m_entries.cend() && entry->size == file.size() && entry->time == file.lastModified();
}

void LayoutCache::read(const QString& drawing, const Asker& asker)
{
    std::vector<Asker>& askers = m_askers[drawing];
    askers.push_back(asker);
    if (askers.size() > 1)
        return;
    const auto job = [this, drawing, isWanted = asker.isWanted](const std::stop_token& stop) -> Background::Result {
        std::optional<Entry> entry;
        if (isWanted()) {
            const QFileInfo file(drawing);
            entry = {file.size(), file.lastModified(), {}};
            entry->layouts = readDxfLayouts(velm::odFromQt(drawing), stop);
        }
        return [this, drawing, entry] { finish(drawing, entry); };
    };
    m_reading.start(job, asker.priority);
}

/// No entry: the first who asked didn't wait for it.
void LayoutCache::finish(const QString& drawing, const std::optional<Entry>& entry)
{
    const std::vector<Asker> askers = m_askers.take(drawing);
    if (entry) {
        m_entries.insert(drawing, *entry);
        askers.front().done();
    }
    // Those who joined may know of a change since it was read.
    for (std::size_t place = 1; place < askers.size(); ++place)
        if (isKnown(drawing))
            askers[place].done();
        else
            read(drawing, askers[place]);
}
} // namespace workbench
