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

void LayoutCache::read(const QString& drawing, const std::function<void()>& done, int priority)
{
    std::vector<std::function<void()>>& waiting = m_waiting[drawing];
    waiting.push_back(done);
    if (waiting.size() > 1)
        return;
    const auto job = [this, drawing](const std::stop_token& stop) -> Background::Result {
        const QFileInfo file(drawing);
        Entry entry{file.size(), file.lastModified()};
        entry.layouts = readDxfLayouts(velm::odFromQt(drawing), stop);
        return [this, drawing, entry] {
            m_entries.insert(drawing, entry);
            for (const std::function<void()>& callback : m_waiting.take(drawing))
                callback();
        };
    };
    m_reading.start(job, priority);
}
} // namespace workbench
