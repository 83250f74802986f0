#pragma once

#include <QPersistentModelIndex>
#include <QSet>
#include <QStringList>

#include <optional>

namespace workbench {
/// What is in a folder or drawing.
struct SheetSetListing
{
    SheetSetListing() = default;
    explicit SheetSetListing(const QStringList& entries)
        : paths(entries), present(entries.begin(), entries.end()), added(entries.begin(), entries.end())
    {}

    QStringList paths{};
    QSet<QString> present{};
    QSet<QString> added{}; ///< those for which a row is to come, once all rows were looked at
};

/// A folder or drawing whose rows are brought into step with what is in it. Nothing else changes these rows.
struct SheetSetReading
{
    enum class Phase
    {
        Listing,
        Comparing,
        Appending,
        Removing,
        Ended,
    };

    QPersistentModelIndex parent;
    int priority = 0; ///< what was opened last is what the user looks at
    Phase phase = Phase::Listing;
    SheetSetListing listing{};
    bool isListed = false;    ///< and not one that can't be read
    qsizetype next = 0;       ///< row or path to look at
    QList<int> gone{};        ///< rows, from the first to the last
    QSet<QString> drawings{}; ///< that are being read, and get their rows then
    bool isOutdated = false;  ///< the folder has changed since it was listed
};
} // namespace workbench
