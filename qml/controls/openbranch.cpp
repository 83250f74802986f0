#include "openbranch.h"

#include <algorithm>

namespace velmqml {
OpenBranch::OpenBranch(int row, int childCount, Children open)
    : m_row(row), m_count(childCount), m_open(std::move(open))
{
    for (const auto& branch : m_open)
        branch->m_parent = this;
    recount();
}

int OpenBranch::depth() const
{
    int result = 0;
    for (const OpenBranch* branch = m_parent; branch; branch = branch->m_parent)
        ++result;
    return result;
}

OpenBranch::Children::const_iterator OpenBranch::lowerBound(int row) const
{
    return std::lower_bound(m_open.begin(), m_open.end(), row,
                            [](const auto& branch, int wanted) { return branch->m_row < wanted; });
}

OpenBranch* OpenBranch::openChild(int row) const
{
    const auto found = lowerBound(row);
    return found != m_open.end() && (*found)->m_row == row ? found->get() : nullptr;
}

int OpenBranch::placeOfChild(int row) const
{
    const auto next = lowerBound(row);
    if (next == m_open.begin())
        return row;
    const OpenBranch& above = **std::prev(next);
    return row + above.m_before + above.m_total;
}

int OpenBranch::placeInRoot() const
{
    return m_parent ? m_parent->placeInRoot() + m_parent->placeOfChild(m_row) + 1 : 0;
}

OpenBranch::Place OpenBranch::find(int place) const
{
    // The last open child that doesn't lie behind the place.
    const auto next = std::upper_bound(m_open.begin(), m_open.end(), place, [](int wanted, const auto& branch) {
        return wanted < branch->m_row + branch->m_before;
    });
    if (next == m_open.begin())
        return {this, place};
    const OpenBranch& above = **std::prev(next);
    const int below = place - (above.m_row + above.m_before) - 1;
    if (below < 0)
        return {this, above.m_row};
    if (below < above.m_total)
        return above.find(below);
    return {this, place - above.m_before - above.m_total};
}

void OpenBranch::open(std::unique_ptr<OpenBranch> branch)
{
    branch->m_parent = this;
    m_open.insert(lowerBound(branch->m_row), std::move(branch));
    recount();
}

void OpenBranch::close(int row)
{
    m_open.erase(lowerBound(row));
    recount();
}

void OpenBranch::insertRows(int first, int count)
{
    for (auto branch = lowerBound(first); branch != m_open.end(); ++branch)
        (*branch)->m_row += count;
    m_count += count;
    recount();
}

void OpenBranch::removeRows(int first, int count)
{
    const auto next = m_open.erase(lowerBound(first), lowerBound(first + count));
    for (auto branch = next; branch != m_open.end(); ++branch)
        (*branch)->m_row -= count;
    m_count -= count;
    recount();
}

void OpenBranch::recount()
{
    for (OpenBranch* branch = this; branch; branch = branch->m_parent) {
        int below = 0;
        for (const auto& child : branch->m_open) {
            child->m_before = below;
            below += child->m_total;
        }
        branch->m_total = branch->m_count + below;
    }
}
} // namespace velmqml
