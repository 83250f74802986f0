#include "velm/table/selectedcells.h"

#include <algorithm>
#include <map>

namespace velm {
namespace {
bool contains(const auto& set, int place)
{
    return place >= 0 && static_cast<std::size_t>(place) < set.size() && set[static_cast<std::size_t>(place)];
}
} // namespace

SelectedCells::SelectedCells(const QItemSelection& selection)
{
    std::vector<QItemSelectionRange> top;
    QHash<QModelIndex, std::vector<QItemSelectionRange>> byParent;
    for (const QItemSelectionRange& range : selection) {
        if (!range.isValid())
            continue;
        const QModelIndex parent = range.parent();
        (parent.isValid() ? byParent[parent] : top).push_back(range);
    }
    m_top = spread(top);
    for (auto entry = byParent.cbegin(); entry != byParent.cend(); ++entry)
        m_branches.insert(entry.key(), spread(entry.value()));
}

SelectedCells::Branch SelectedCells::spread(const std::vector<QItemSelectionRange>& ranges)
{
    Branch branch;
    if (ranges.empty())
        return branch;

    // The rows are walked from top to bottom: at each step a range begins or ends.
    struct Step
    {
        int row;
        int left;
        int right;
        int change;
    };
    std::vector<Step> steps;
    steps.reserve(2 * ranges.size());
    int bottom = 0;
    int right = 0;
    for (const QItemSelectionRange& range : ranges) {
        steps.push_back({range.top(), range.left(), range.right(), 1});
        steps.push_back({range.bottom() + 1, range.left(), range.right(), -1});
        bottom = std::max(bottom, range.bottom());
        right = std::max(right, range.right());
    }
    std::sort(steps.begin(), steps.end(), [](const Step& a, const Step& b) { return a.row < b.row; });

    const auto width = static_cast<std::size_t>(right) + 1;
    std::vector<int> depths(width); // how many ranges cover each column
    branch.rows.resize(static_cast<std::size_t>(bottom) + 1);
    branch.columns.resize(width);
    std::map<ColumnSet, std::uint32_t> known;
    for (auto step = steps.begin(); step != steps.end();) {
        const int row = step->row;
        for (; step != steps.end() && step->row == row; ++step)
            for (int column = step->left; column <= step->right; ++column)
                depths[static_cast<std::size_t>(column)] += step->change;
        if (step == steps.end())
            break;
        ColumnSet columns(width);
        std::transform(depths.begin(), depths.end(), columns.begin(), [](int depth) { return depth > 0; });
        if (std::find(columns.begin(), columns.end(), true) == columns.end())
            continue;
        const auto [set, isNew] = known.try_emplace(columns, static_cast<std::uint32_t>(known.size() + 1));
        if (isNew) {
            for (std::size_t column = 0; column < width; ++column)
                if (columns[column])
                    branch.columns[column] = true;
            branch.columnSets.push_back(std::move(columns));
        }
        std::fill(branch.rows.begin() + row, branch.rows.begin() + step->row, set->second);
    }
    return branch;
}

const SelectedCells::Branch& SelectedCells::branch(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return m_top;
    static const Branch none;
    const auto found = m_branches.constFind(parent);
    return found == m_branches.cend() ? none : *found;
}

bool SelectedCells::containsRow(int row, const QModelIndex& parent) const
{
    return contains(branch(parent).rows, row);
}

bool SelectedCells::containsColumn(int column, const QModelIndex& parent) const
{
    return contains(branch(parent).columns, column);
}

bool SelectedCells::containsCell(int row, int column, const QModelIndex& parent) const
{
    const Branch& found = branch(parent);
    if (!contains(found.rows, row))
        return false;
    return contains(found.columnSets[found.rows[static_cast<std::size_t>(row)] - 1], column);
}
} // namespace velm
