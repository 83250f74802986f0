#pragma once

#include "drawing/dxflayouts.h"
#include "sheetset/background.h"

#include <QDateTime>
#include <QHash>

#include <optional>

namespace workbench {
/// The layouts of drawing files, read on other threads. A file is read again when its size or its time has changed.
class LayoutCache
{
public:
    /// Whether they were read and the file hasn't changed since.
    bool isKnown(const QString& drawing) const;
    /// As they were read last; none for a file that can't be read.
    std::vector<DxfLayout> layouts(const QString& drawing) const { return m_entries.value(drawing).layouts; }
    struct Asker
    {
        std::function<void()> done;
        int priority;
        std::function<bool()> isWanted; ///< called on other threads
    };
    /// Reads them anew, and calls back as soon as reading() finishes it. What isn't wanted any more when its turn comes
    /// isn't read.
    void read(const QString& drawing, const Asker& asker);

    Background& reading() { return m_reading; }

private:
    struct Entry
    {
        qint64 size = -1;
        QDateTime time{};
        std::vector<DxfLayout> layouts{};
    };

    QHash<QString, Entry> m_entries;
    void finish(const QString& drawing, const std::optional<Entry>& entry);

    QHash<QString, std::vector<Asker>> m_askers; // for what is being read
    Background m_reading{2};                     // each may hold a gigabyte
};
} // namespace workbench
