#pragma once

#include "velm/table/sortkeys.h"

#include <QAbstractListModel>

#include <algorithm>

/// The forms that keys take, and what makes them of cells.
namespace velm::sortkeys {
/// How a row without a value stands to the others.
enum class Absent
{
    EqualToAll,
    Last,
};

/// One value a row. `present` is empty when all have one.
template <typename Value, Absent absent>
class ValueKeys final : public SortKeys
{
public:
    ValueKeys(std::vector<Value> values, std::vector<char> present)
        : m_values(std::move(values)), m_present(std::move(present))
    {}

    bool lessThan(int leftRow, int rightRow) const override
    {
        const auto left = static_cast<std::size_t>(leftRow);
        const auto right = static_cast<std::size_t>(rightRow);
        if (m_present.empty())
            return m_values[left] < m_values[right];
        if constexpr (absent == Absent::Last)
            return m_present[left] && (!m_present[right] || m_values[left] < m_values[right]);
        else
            return m_present[left] && m_present[right] && m_values[left] < m_values[right];
    }

private:
    std::vector<Value> m_values;
    std::vector<char> m_present;
};

/// One record a row, compared by a function.
template <typename Record, typename Less>
class RecordKeys final : public SortKeys
{
public:
    RecordKeys(std::vector<Record> records, Less less) : m_records(std::move(records)), m_less(std::move(less)) {}

    bool lessThan(int leftRow, int rightRow) const override
    {
        return m_less(m_records[static_cast<std::size_t>(leftRow)], m_records[static_cast<std::size_t>(rightRow)]);
    }

private:
    std::vector<Record> m_records;
    Less m_less;
};

/// Values read once, for comparisons that take indexes.
class ReadValues final : public QAbstractListModel
{
public:
    explicit ReadValues(std::vector<QVariant> values) : m_values(std::move(values)) {}

    QModelIndex at(int row) const { return createIndex(row, 0); }
    int rowCount(const QModelIndex& /*parent*/ = {}) const override { return static_cast<int>(m_values.size()); }
    QVariant data(const QModelIndex& index, int /*role*/) const override
    {
        return m_values[static_cast<std::size_t>(index.row())];
    }

private:
    std::vector<QVariant> m_values;
};

class BaseKeys final : public SortKeys
{
public:
    BaseKeys(std::vector<QVariant> values, std::function<bool(const QModelIndex&, const QModelIndex&)> lessThan)
        : m_values(std::move(values)), m_lessThan(std::move(lessThan))
    {}

    bool lessThan(int leftRow, int rightRow) const override
    {
        return m_lessThan(m_values.at(leftRow), m_values.at(rightRow));
    }

private:
    ReadValues m_values;
    std::function<bool(const QModelIndex&, const QModelIndex&)> m_lessThan;
};

/// Reads cells and puts what is computed of them where their rows are.
class Maker
{
public:
    explicit Maker(const SortedCells& cells)
        : m_cells(cells), m_size(cells.rows.empty() ? 0 : static_cast<std::size_t>(cells.rows.back()) + 1)
    {}

    std::size_t count() const { return m_cells.rows.size(); }
    QVariant value(std::size_t i) const { return m_cells.source->data(index(m_cells.rows[i]), m_cells.role); }

    std::vector<QVariant> values() const
    {
        std::vector<QVariant> result;
        result.reserve(m_cells.rows.size());
        for (const int row : m_cells.rows)
            result.push_back(m_cells.source->data(index(row), m_cells.role));
        return result;
    }

    std::vector<QString> texts(int role) const
    {
        std::vector<QString> result;
        result.reserve(m_cells.rows.size());
        for (const int row : m_cells.rows)
            result.push_back(m_cells.source->data(index(row), role).toString());
        return result;
    }
    std::vector<QString> texts() const { return texts(m_cells.role); }

    template <typename Value>
    std::vector<Value> byRow(std::vector<Value> values) const
    {
        if (values.empty() || values.size() == m_size)
            return values;
        std::vector<Value> result(m_size);
        for (std::size_t i = 0; i < values.size(); ++i)
            result[static_cast<std::size_t>(m_cells.rows[i])] = std::move(values[i]);
        return result;
    }

    template <Absent absent = Absent::EqualToAll, typename Value>
    std::unique_ptr<SortKeys> keys(std::vector<Value> values, std::vector<char> present = {}) const
    {
        if (std::find(present.begin(), present.end(), char(false)) == present.end())
            present.clear();
        return std::make_unique<ValueKeys<Value, absent>>(byRow(std::move(values)), byRow(std::move(present)));
    }

    template <typename Record, typename Less>
    std::unique_ptr<SortKeys> recordKeys(std::vector<Record> records, Less less) const
    {
        return std::make_unique<RecordKeys<Record, Less>>(byRow(std::move(records)), std::move(less));
    }

    std::unique_ptr<SortKeys> base(std::function<bool(const QModelIndex&, const QModelIndex&)> lessThan) const
    {
        return std::make_unique<BaseKeys>(byRow(values()), std::move(lessThan));
    }

private:
    QModelIndex index(int row) const { return m_cells.source->index(row, m_cells.column, m_cells.parent); }

    const SortedCells& m_cells;
    std::size_t m_size;
};
} // namespace velm::sortkeys
