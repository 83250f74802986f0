#pragma once

#include "velm/table/sortfilterselectmodel.h"

#include <QModelIndex>
#include <QPersistentModelIndex>

namespace velm {
/// The state of single cells of a table beyond the selection: pre-focus, focus, hover and begin of an edit, each read
/// through a role of its own and told of by dataChanged for that role alone.
class TableCursor
{
public:
    using Mode = SortFilterSelectModel::SelectionMode;

    /// The numbers of the roles; -1 for none.
    struct Roles
    {
        int hovered = -1;
        int beginEdit = -1;
        int preFocus = -1;
        int focusCell = -1;
    };

    TableCursor(SortFilterSelectModel& model, const QItemSelectionModel& selection)
        : m_model(model), m_selection(selection)
    {}

    Roles& roles() { return m_roles; }
    const Roles& roles() const { return m_roles; }

    bool isHovered(const QModelIndex& index, Mode mode) const;
    bool isPreFocused(const QModelIndex& index) const { return isAt(index, m_preFocus); }
    bool isFocused(const QModelIndex& index) const { return isAt(index, m_focusCell); }
    /// -1 for none.
    int beginEditRow() const { return m_beginEditRow; }

    void forgetHover();
    void forgetFocus();

    void setHovered(int row, int column, bool hovered, Mode mode);
    void setBeginEditRow(int row);

    bool hasPreFocus() const { return m_preFocus.isValid(); }
    void nextRow();
    void previousRow();
    void nextColumn();
    void previousColumn();
    void unsetPreFocus();
    bool checkPreFocusOnParent(const QModelIndex& old);
    void focusPreFocused();

private:
    static bool isAt(const QModelIndex& index, const QPersistentModelIndex& place);
    QModelIndex current() const { return m_selection.currentIndex(); }
    /// Begins the pre-focus in the current row; false when it had begun.
    bool seed();
    void movedByRow(const QModelIndex& old);
    void movedByColumn(QModelIndex old, int column, bool seeded);
    /// Tells of the cell at the row and column of `cell` beside `sibling`.
    void tellOfPreFocus(const QModelIndex& cell, const QModelIndex& sibling);
    void tell(const QModelIndex& topLeft, const QModelIndex& bottomRight, int role);
    void tellOfRow(int row);
    void tellOfColumn(int column);

    SortFilterSelectModel& m_model;
    const QItemSelectionModel& m_selection;
    Roles m_roles;
    QModelIndex m_hovered;
    QModelIndex m_lastHovered; // what the next hovered row, column or cell takes the mark from; only compared
    int m_beginEditRow = -1;
    QPersistentModelIndex m_preFocus;
    QPersistentModelIndex m_focusCell;
};
} // namespace velm
