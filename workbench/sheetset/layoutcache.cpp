#include "sheetset/layoutcache.h"

#include "velm/bridge/conversions.h"

#include <QFileInfo>

namespace workbench {
const std::vector<DxfLayout>& LayoutCache::layouts(const QString& drawing)
{
    const QFileInfo file(drawing);
    Entry& entry = m_entries[drawing];
    if (entry.size != file.size() || entry.time != file.lastModified()) {
        entry = {file.size(), file.lastModified(), readDxfLayouts(velm::odFromQt(drawing))};
        ++m_readCount;
    }
    return entry.layouts;
}
} // namespace workbench
