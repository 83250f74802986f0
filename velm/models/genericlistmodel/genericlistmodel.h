#pragma once

#include "velm/models/genericlistmodel/genericlistmodelbase.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <optional>
#include <utility>
#include <vector>

namespace velm {
/// A flat list of values that a page shows. Each change of the list is one pair of model signals; a change whose
/// arguments don't fit is silently none. A concrete model supplies data() and roleNames(). A T can be copied, moved and
/// compared.
template <typename T>
class GenericListModel : public GenericListModelBase
{
public:
    GenericListModel() = default;
    explicit GenericListModel(std::vector<T>&& items) : m_items(std::move(items)) {}
    explicit GenericListModel(const std::vector<T>& items) : m_items(items) {}

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : size(); }
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override = 0;
    QVariant data(int row, int role) const { return data(index(row, 0, QModelIndex()), role); }

    /// A reset, of an empty list, too.
    void clear()
    {
        beginResetModel();
        m_items.clear();
        endResetModel();
    }
    void reset(std::vector<T>&& items)
    {
        beginResetModel();
        if (&items != &m_items)
            m_items = std::move(items);
        endResetModel();
    }

    void update(int row, T&& value, const QList<int>& roles = {}) { assign(row, std::move(value), roles); }
    void update(int row, const T& value, const QList<int>& roles = {}) { assign(row, value, roles); }

    /// The new last row.
    int append(T&& value)
    {
        const int row = size();
        beginInsertRows(QModelIndex(), row, row);
        m_items.push_back(std::move(value));
        endInsertRows();
        return row;
    }
    void append(std::vector<T>&& values) { insert(size(), std::move(values)); }
    void insert(int row, T&& value)
    {
        if (row < 0 || row > size())
            return;
        beginInsertRows(QModelIndex(), row, row);
        m_items.insert(m_items.begin() + row, std::move(value));
        endInsertRows();
    }
    /// Unlike a single value's, the row isn't tested: it must be one from 0 to size(). This must stay.
    void insert(int row, std::vector<T>&& values)
    {
        if (values.empty())
            return;
        beginInsertRows(QModelIndex(), row, row + static_cast<int>(values.size()) - 1);
        m_items.reserve(m_items.size() + values.size());
        m_items.insert(m_items.begin() + row, std::make_move_iterator(values.begin()),
                       std::make_move_iterator(values.end()));
        endInsertRows();
    }
    /// A count that reaches past the end stands for all rows up to it.
    void erase(int first, int count)
    {
        if (first < 0 || first >= size() || count < 1)
            return;
        const int behind = first + std::min(size() - first, count);
        beginRemoveRows(QModelIndex(), first, behind - 1);
        m_items.erase(m_items.begin() + first, m_items.begin() + behind);
        endRemoveRows();
    }

    /// Puts the rows first to last before the row that now is dest; false, with no signal, when nothing would change.
    bool move(int first, int last, int dest)
    {
        if (!isMove(first, last, dest, size()) || !beginMoveRows(QModelIndex(), first, last, QModelIndex(), dest))
            return false;
        const auto begin = m_items.begin();
        if (dest < first)
            std::rotate(begin + dest, begin + first, begin + last + 1);
        else
            std::rotate(begin + first, begin + last + 1, begin + dest);
        endMoveRows();
        return true;
    }
    /// Puts the rows into another model, not this one, as a removal here and an insert there. dest must not be
    /// negative. A first row just behind the last one is announced as a removal of no row. This must stay.
    void move(int first, int last, GenericListModel<T>& other, int dest)
    {
        const bool fits = first >= 0 && first < size() && last >= 0 && last < size() && first <= last + 1;
        if (!fits || dest > other.rowCount(QModelIndex()))
            return;
        beginRemoveRows(QModelIndex(), first, last);
        const auto begin = m_items.begin() + first;
        const auto end = m_items.begin() + last + 1;
        std::vector<T> moved(std::make_move_iterator(begin), std::make_move_iterator(end));
        m_items.erase(begin, end);
        endRemoveRows();
        other.insert(dest, std::move(moved));
    }

    // The row isn't tested.
    T& operator[](int row) { return m_items[static_cast<std::size_t>(row)]; }
    const T& operator[](int row) const { return m_items[static_cast<std::size_t>(row)]; }

    // Null for a row that doesn't exist.
    const T* getItem(const QModelIndex& index) const { return index.isValid() ? getItem(index.row()) : nullptr; }
    const T* getItem(int row) const { return row >= 0 && row < size() ? &(*this)[row] : nullptr; }
    T* getItem(int row) { return row >= 0 && row < size() ? &(*this)[row] : nullptr; }
    T* last() { return m_items.empty() ? nullptr : &m_items.back(); }

    const std::vector<T>& getItems() const { return m_items; }
    int size() const { return static_cast<int>(m_items.size()); }
    auto begin() { return m_items.begin(); }
    auto begin() const { return m_items.begin(); }
    auto end() { return m_items.end(); }
    auto end() const { return m_items.end(); }

    std::optional<int> find(const T& value) const { return rowOf(std::find(m_items.begin(), m_items.end(), value)); }
    /// An empty predicate throws std::bad_function_call as soon as there is a row to ask about.
    std::optional<int> find_if(const std::function<bool(const T&)>& predicate) const
    {
        return rowOf(std::find_if(m_items.begin(), m_items.end(), std::cref(predicate)));
    }

private:
    template <typename Value>
    void assign(int row, Value&& value, const QList<int>& roles)
    {
        if (row < 0 || row >= size())
            return;
        (*this)[row] = std::forward<Value>(value);
        const QModelIndex changed = index(row, 0, QModelIndex());
        Q_EMIT dataChanged(changed, changed, roles);
    }
    std::optional<int> rowOf(typename std::vector<T>::const_iterator place) const
    {
        return place == m_items.end() ? std::nullopt : std::optional<int>(static_cast<int>(place - m_items.begin()));
    }

    std::vector<T> m_items;
};
} // namespace velm
