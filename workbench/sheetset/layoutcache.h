#pragma once

#include "drawing/dxflayouts.h"
#include "sheetset/background.h"

#include <QDateTime>
#include <QHash>

namespace workbench {
/// The layouts of drawing files, read on other threads. A file is read again when its size or its time has changed.
class LayoutCache
{
public:
    /// Whether they were read and the file hasn't changed since.
    bool isKnown(const QString& drawing) const;
    /// As they were read last; none for a file that can't be read.
    std::vector<DxfLayout> layouts(const QString& drawing) const { return m_entries.value(drawing).layouts; }
    /// Reads them anew, and calls back as soon as reading() finishes it.
    void read(const QString& drawing, const std::function<void()>& done, int priority);

    Background& reading() { return m_reading; }

private:
    struct Entry
    {
        qint64 size = -1;
        QDateTime time{};
        std::vector<DxfLayout> layouts{};
    };

    QHash<QString, Entry> m_entries;
    QHash<QString, std::vector<std::function<void()>>> m_waiting; // for what is being read
    Background m_reading{2};                                      // each may hold a gigabyte
};
} // namespace workbench
