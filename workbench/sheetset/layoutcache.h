#pragma once

#include "drawing/dxflayouts.h"

#include <QDateTime>
#include <QHash>

namespace workbench {
/// The layouts of drawing files. A file is read again when its size or its time has changed.
class LayoutCache
{
public:
    /// None for a file that can't be read.
    const std::vector<DxfLayout>& layouts(const QString& drawing);
    /// How often a file was read.
    int readCount() const { return m_readCount; }

private:
    struct Entry
    {
        qint64 size = -1;
        QDateTime time{};
        std::vector<DxfLayout> layouts{};
    };

    QHash<QString, Entry> m_entries;
    int m_readCount = 0;
};
} // namespace workbench
