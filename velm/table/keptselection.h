#pragma once

#include "velm/table/columnmap.h"
#include "velm/table/sortfilterselectmodel.h"

#include <QPersistentModelIndex>

#include <vector>

namespace velm {
/// A selection told by source columns, to be taken away before columns move and to be put back behind.
class KeptSelection
{
public:
    /// Clears the selection; the current index stays. Both are used until putBack().
    KeptSelection(SortFilterSelectModel& model, const ColumnMap& columns);

    void putBack() const;

private:
    struct Rows
    {
        QPersistentModelIndex parent;
        int top;
        int bottom;
        std::vector<int> sourceColumns;
    };

    SortFilterSelectModel& m_model;
    const ColumnMap& m_columns;
    std::vector<Rows> m_rows;
};

/// A selection of top-level rows and the current index told by source rows, to be taken away before very many rows come
/// and go, and to be put back behind for what is left of them.
class KeptRows
{
public:
    explicit KeptRows(SortFilterSelectModel& model);

    void putBack() const;

private:
    struct Rows
    {
        int left;
        int right;
        std::vector<int> sourceRows;
    };

    SortFilterSelectModel& m_model;
    std::vector<Rows> m_rows;
    QPersistentModelIndex m_current; // of the source
    int m_currentRow = -1;
    int m_currentColumn = -1;
};

/// Calls `use` with the first and last of each run of neighbours.
template <typename Use>
void forEachRun(std::vector<int> places, Use use);
} // namespace velm

#include <algorithm>

template <typename Use>
void velm::forEachRun(std::vector<int> places, Use use)
{
    std::sort(places.begin(), places.end());
    for (auto first = places.begin(); first != places.end();) {
        auto last = first;
        while (std::next(last) != places.end() && *std::next(last) == *last + 1)
            ++last;
        use(*first, *last);
        first = std::next(last);
    }
}
