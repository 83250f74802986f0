#pragma once

#include "velm/velm_export.h"

#include <vector>

namespace velm {
/// What a table knows of one column of its source.
struct ColumnState
{
    int position = -1; ///< the proxy column while visible, the remembered place while hidden
    int width = 100;   ///< pixels
    int proportionalWidth = 0;
    bool visible = true;
};

/// Which source column stands where in a table. Every operation leaves it whole: each shown column has its place as its
/// position, and a hidden one keeps the last it had. Columns that aren't there are ignored.
class VELM_EXPORT ColumnMap
{
public:
    /// New columns: all states, and the shown ones in their order.
    void reset(std::vector<ColumnState> states, std::vector<int> order);

    /// Element p is the source column shown at proxy column p.
    const std::vector<int>& order() const { return m_order; }
    const std::vector<ColumnState>& states() const { return m_states; }
    int sourceCount() const { return static_cast<int>(m_states.size()); }
    int shownCount() const { return static_cast<int>(m_order.size()); }
    /// Null for a column that isn't there.
    const ColumnState* state(int source) const;
    /// Of the column at a proxy column.
    const ColumnState* shown(int proxy) const;

    /// A column that isn't there is given back unchanged.
    int toSource(int proxy) const;
    int toProxy(int source) const;
    bool isVisible(int source) const;
    int hiddenBefore(int source) const;

    /// Shows these source columns, each once, in this order, and no others.
    void setOrder(std::vector<int> order);
    void setWidth(int source, int width);
    void setPosition(int source, int position);
    /// The order in which a source column is shown as well, at its remembered place or, when that is none, where the
    /// source has it.
    std::vector<int> orderWith(int source) const;
    std::vector<int> orderWithout(int source) const;

    /// Makes room for source columns, hidden at first, that are remembered behind the shown columns before them.
    void insert(int first, const std::vector<ColumnState>& states);
    void remove(int first, int last);

private:
    void rebuild();

    std::vector<ColumnState> m_states; // by source column
    std::vector<int> m_order;
};
} // namespace velm
