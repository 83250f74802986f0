#include "velm/table/tablecursor.h"

#include <algorithm>

namespace velm {
bool TableCursor::isAt(const QModelIndex& index, const QPersistentModelIndex& place)
{
    return index.row() == place.row() && index.column() == place.column() && index.parent() == place.parent();
}

bool TableCursor::isHovered(const QModelIndex& index, Mode mode) const
{
    switch (mode) {
    case Mode::Row:
        return index.row() == m_hovered.row();
    case Mode::Column:
        return index.column() == m_hovered.column();
    case Mode::Cell:
        break;
    }
    return index == m_hovered;
}

void TableCursor::forgetHover()
{
    m_hovered = {};
    m_lastHovered = {};
}

void TableCursor::forgetFocus()
{
    m_preFocus = QPersistentModelIndex();
    m_focusCell = QPersistentModelIndex();
}

void TableCursor::tell(const QModelIndex& topLeft, const QModelIndex& bottomRight, int role)
{
    if (topLeft.isValid() && bottomRight.isValid())
        Q_EMIT m_model.dataChanged(topLeft, bottomRight, {role});
}

void TableCursor::tellOfRow(int row)
{
    tell(m_model.index(row, 0), m_model.index(row, m_model.columnCount() - 1), m_roles.hovered);
}

void TableCursor::tellOfColumn(int column)
{
    tell(m_model.index(0, column), m_model.index(m_model.rowCount() - 1, column), m_roles.hovered);
}

void TableCursor::setHovered(int row, int column, bool hovered, Mode mode)
{
    if (m_model.columnCount() == 0 || m_model.rowCount() == 0)
        return;
    // The row stays hovered until another one is entered: this must stay.
    if (!hovered && mode == Mode::Row && row == m_lastHovered.row())
        return;
    const QModelIndex cell = m_model.index(row, column);
    m_hovered = hovered ? cell : QModelIndex();
    const QModelIndex last = m_lastHovered;
    switch (mode) {
    case Mode::Row:
        if (hovered && row != last.row()) {
            m_lastHovered = cell;
            tellOfRow(last.row());
        }
        tellOfRow(row);
        break;
    case Mode::Column:
        if (hovered && column != last.column()) {
            m_lastHovered = cell;
            tellOfColumn(last.column());
        }
        tellOfColumn(column);
        break;
    case Mode::Cell:
        if (hovered && cell != last) {
            m_lastHovered = cell;
            const QModelIndex left = m_model.index(last.row(), last.column());
            tell(left, left, m_roles.hovered);
        }
        tell(cell, cell, m_roles.hovered);
        break;
    }
}

void TableCursor::setBeginEditRow(int row)
{
    if (row == m_beginEditRow)
        return;
    m_beginEditRow = row;
    tell(m_model.index(row, 0), m_model.index(row, m_model.columnCount() - 1), m_roles.beginEdit);
}

bool TableCursor::seed()
{
    if (m_preFocus.isValid())
        return false;
    m_preFocus = m_model.index(current().row(), 0, current().parent());
    return true;
}

void TableCursor::tellOfPreFocus(const QModelIndex& cell, const QModelIndex& sibling)
{
    if (!cell.isValid())
        return;
    const QModelIndex changed = m_model.index(cell.row(), cell.column(), sibling.parent());
    tell(changed, changed, m_roles.preFocus);
}

void TableCursor::nextRow()
{
    if (!m_preFocus.isValid())
        return;
    const QModelIndex old = m_preFocus;
    const QModelIndex parent = old.parent();
    const int last = m_model.rowCount(parent) - 1;
    if (old.row() >= last)
        m_preFocus = parent.sibling(parent.row() + 1, parent.column()); // invalid at the table's end
    else
        m_preFocus = m_model.index(std::min(old.row() + 1, last),
                                   std::max(std::min(m_model.columnCount(parent), old.column()), 0), parent);
    movedByRow(old);
}

void TableCursor::previousRow()
{
    if (!m_preFocus.isValid())
        return;
    const QModelIndex old = m_preFocus;
    const QModelIndex parent = old.parent();
    if (old.row() == 0)
        m_preFocus = parent;
    else
        m_preFocus = m_model.index(std::max(old.row() - 1, 0),
                                   std::max(std::min(m_model.columnCount(parent), old.column()), 0), parent);
    movedByRow(old);
}

void TableCursor::movedByRow(const QModelIndex& old)
{
    if (!checkPreFocusOnParent(old))
        return;
    tellOfPreFocus(old, m_preFocus);
    tellOfPreFocus(m_preFocus, m_preFocus);
}

void TableCursor::nextColumn()
{
    if (m_preFocus.column() >= m_model.columnCount() - 1)
        return;
    const QModelIndex old = m_preFocus;
    const bool seeded = seed();
    movedByColumn(old, old.column() + 1, seeded);
}

void TableCursor::previousColumn()
{
    const QModelIndex old = m_preFocus;
    const bool seeded = seed();
    movedByColumn(old, std::max(old.column() - 1, 0), seeded);
}

void TableCursor::movedByColumn(QModelIndex old, int column, bool seeded)
{
    if (!seeded)
        m_preFocus = old.siblingAtColumn(column);
    if (!old.isValid())
        old = m_preFocus;
    tellOfPreFocus(old, m_preFocus);
    tellOfPreFocus(m_preFocus, m_preFocus);
}

bool TableCursor::checkPreFocusOnParent(const QModelIndex& old)
{
    if (!m_model.hasChildren(current()))
        return true;
    forgetFocus();
    tellOfPreFocus(old, old);
    return false;
}

void TableCursor::unsetPreFocus()
{
    const QModelIndex old = m_preFocus;
    m_preFocus = QPersistentModelIndex();
    const QModelIndex cell = m_model.index(old.row(), old.column());
    tell(cell, cell, m_roles.preFocus);
}

void TableCursor::focusPreFocused()
{
    m_focusCell = m_preFocus;
    const QModelIndex cell = m_model.index(m_focusCell.row(), m_focusCell.column(), m_focusCell.parent());
    tell(cell, cell, m_roles.focusCell);
}
} // namespace velm
