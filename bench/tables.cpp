#include "bench/comparison.h"

#include "velm/table/columns.h"
#include "velm/table/sortfilterselectmodel.h"

#include <QAbstractTableModel>
#include <QCollator>
#include <QRandomGenerator>
#include <QSortFilterProxyModel>

#include <optional>
#include <vector>

namespace velmbench {
namespace {
constexpr int million = 1'000'000;
constexpr int repetitions = 3; // a yardstick takes up to half a minute

enum Column
{
    TextColumn,
    ValueColumn,   // int, sorted by value type
    IntegerColumn, // the same, sorted as integers
    DoubleColumn,
    CaseColumn, // the texts, sorted without regard to case
    ColumnCount,
};

/// A million rows of texts such as "Bolt 137-2a" and of numbers, in no order.
class Rows : public QAbstractTableModel
{
public:
    Rows()
    {
        QRandomGenerator random(1);
        m_texts.reserve(million);
        m_numbers.reserve(million);
        m_doubles.reserve(million);
        for (int row = 0; row < million; ++row) {
            m_texts.push_back(QString("%1 %2-%3%4")
                                  .arg(random.bounded(2) ? "Bolt" : "bolt")
                                  .arg(random.bounded(5000))
                                  .arg(random.bounded(500))
                                  .arg(QChar('a' + random.bounded(26))));
            m_numbers.push_back(random.bounded(-million, million));
            m_doubles.push_back(random.generateDouble() * 1000.0);
        }
        m_columns.columns = {velm::ColumnBuilder("Text", "text").sortType(velm::SortAlphanumeric),
                             velm::ColumnBuilder("Value", "value"),
                             velm::ColumnBuilder("Integer", "integer").sortType(velm::SortInteger),
                             velm::ColumnBuilder("Double", "double").sortType(velm::SortDouble),
                             velm::ColumnBuilder("Case", "case").sortType(velm::SortCaseInsensitive)};
    }

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : million; }
    int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : ColumnCount; }
    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role != Qt::DisplayRole)
            return {};
        const auto row = static_cast<std::size_t>(index.row());
        switch (index.column()) {
        case ValueColumn:
        case IntegerColumn:
            return m_numbers[row];
        case DoubleColumn:
            return m_doubles[row];
        default:
            return m_texts[row];
        }
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        return velm::headerData(m_columns, section, orientation, role);
    }

    const std::vector<QString>& texts() const { return m_texts; }

private:
    std::vector<QString> m_texts;
    std::vector<int> m_numbers;
    std::vector<double> m_doubles;
    velm::Columns m_columns;
};

Rows& rows()
{
    static Rows result;
    return result;
}

QCollator naturalCollator()
{
    QCollator collator(QLocale(QLocale::English, QLocale::UnitedStates)); // the C locale has no natural order
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return collator;
}

/// The yardsticks: Qt's proxy with the comparisons that one writes for it.
class CollatorKeys : public QSortFilterProxyModel
{
public:
    void sort(int column, Qt::SortOrder order) override
    {
        const QCollator collator = naturalCollator();
        m_keys.clear();
        m_keys.reserve(rows().texts().size());
        for (const QString& text : rows().texts())
            m_keys.push_back(collator.sortKey(text));
        QSortFilterProxyModel::sort(column, order);
    }

protected:
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override
    {
        return m_keys[static_cast<std::size_t>(left.row())].compare(m_keys[static_cast<std::size_t>(right.row())]) < 0;
    }

private:
    std::vector<QCollatorSortKey> m_keys;
};

class CollatorCompare : public QSortFilterProxyModel
{
protected:
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override
    {
        return m_collator.compare(left.data(sortRole()).toString(), right.data(sortRole()).toString()) < 0;
    }

private:
    QCollator m_collator = naturalCollator();
};

class IntCompare : public QSortFilterProxyModel
{
protected:
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override
    {
        return left.data(sortRole()).toInt() < right.data(sortRole()).toInt();
    }
};

class DoubleCompare : public QSortFilterProxyModel
{
protected:
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override
    {
        return left.data(sortRole()).toDouble() < right.data(sortRole()).toDouble();
    }
};

class CaseCompare : public QSortFilterProxyModel
{
protected:
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override
    {
        return left.data(sortRole()).toString().compare(right.data(sortRole()).toString(), Qt::CaseInsensitive) < 0;
    }
};

template <typename Model, typename IsBehind>
void verifyOrder(const Model& model, int column, IsBehind isBehind)
{
    bool isRight = model.rowCount() == million;
    QVariant last = model.index(0, column).data();
    for (int row = 1; isRight && row < million; row += 1) {
        const QVariant value = model.index(row, column).data();
        isRight = !isBehind(last, value);
        last = value;
    }
    verify(isRight, "sorting");
}

/// `isBehind` tells of two values whether the first must stand behind the second.
template <typename Yardstick, typename IsBehind>
void compareSorts(const std::string& name, int column, IsBehind isBehind)
{
    const auto measure = [=](auto& model, benchmark::State& state, auto sort) {
        model.setDynamicSortFilter(false);
        model.setSourceModel(&rows());
        verify(model.rowCount() == million, "showing all rows");
        for (auto _ : state)
            sort(model);
        verifyOrder(model, column, isBehind);
    };
    compare(
        name,
        [=](benchmark::State& state) {
            velm::SortFilterSelectModel model;
            measure(model, state, [=](auto& sorted) { sorted.doSort(column, true, true); });
        },
        [=](benchmark::State& state) {
            Yardstick model;
            measure(model, state, [=](auto& sorted) { sorted.sort(column, Qt::AscendingOrder); });
        },
        repetitions);
}

bool isEven(int row)
{
    return row % 2 == 0;
}

class EvenRows : public velm::RowFilter
{
public:
    bool rowFilter(QAbstractItemModel*, int sourceRow, QModelIndex) override { return !isOn || isEven(sourceRow); }
    bool isOn = false;
};

class EvenRowsProxy : public QSortFilterProxyModel
{
public:
    bool isOn = false;

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex&) const override { return !isOn || isEven(sourceRow); }
};

/// Hides every second row, or shows it again.
void filterOurs(benchmark::State& state, bool hides)
{
    EvenRows filter;
    velm::SortFilterSelectModel model;
    model.setFilter(&filter);
    model.setSourceModel(&rows());
    verify(model.rowCount() == million, "showing all rows");
    const auto change = [&] {
        filter.isOn = !filter.isOn;
        Q_EMIT filter.invalidate();
        verify(model.rowCount() == (filter.isOn ? million / 2 : million), "filtering");
    };
    if (!hides)
        change();
    for (auto _ : state)
        change();
}

void filterYardstick(benchmark::State& state, bool hides)
{
    EvenRowsProxy model;
    model.setDynamicSortFilter(false);
    model.setSourceModel(&rows());
    verify(model.rowCount() == million, "showing all rows");
    const auto change = [&] {
        model.isOn = !model.isOn;
        model.invalidate();
        verify(model.rowCount() == (model.isOn ? million / 2 : million), "filtering");
    };
    if (!hides)
        change();
    for (auto _ : state)
        change();
}

void readSelection(benchmark::State& state, int ranges)
{
    velm::SortFilterSelectModel model;
    model.setSourceModel(&rows());
    const int distance = million / ranges;
    QItemSelection selection;
    for (int range = 0; range < ranges; ++range)
        selection.append(QItemSelectionRange(model.index(range * distance, 0), model.index(range * distance, 4)));
    model.selectionModel()->select(selection, QItemSelectionModel::Select);
    const int role = model.roleNames().key("isSelected");
    const auto count = [&] {
        int selected = 0;
        for (int row = 0; row < million; ++row)
            selected += model.index(row, 1).data(role).toBool();
        return selected;
    };
    count();
    int selected = 0;
    for (auto _ : state)
        selected = count();
    verify(selected == ranges, "reading the selection");
}

template <typename Model>
void readCells(benchmark::State& state)
{
    Model model;
    model.setSourceModel(&rows());
    model.rowCount();
    qint64 sum = 0;
    for (auto _ : state)
        for (int row = 0; row < million; ++row)
            sum += model.index(row, ValueColumn).data().toInt();
    verify(sum != 0, "reading cells");
}
} // namespace

void addTables()
{
    const auto naturallyBehind = [collator = naturalCollator()](const QVariant& left, const QVariant& right) {
        return collator.compare(left.toString(), right.toString()) > 0;
    };
    compareSorts<CollatorKeys>("table: natural sort, collator keys", TextColumn, naturallyBehind);
    compareSorts<CollatorCompare>("table: natural sort, collator", TextColumn, naturallyBehind);
    const auto intBehind = [](const QVariant& left, const QVariant& right) { return left.toInt() > right.toInt(); };
    compareSorts<IntCompare>("table: sort by int value", ValueColumn, intBehind);
    compareSorts<IntCompare>("table: sort as integers", IntegerColumn, intBehind);
    compareSorts<DoubleCompare>(
        "table: sort as doubles", DoubleColumn,
        [](const QVariant& left, const QVariant& right) { return left.toDouble() > right.toDouble(); });
    compareSorts<CaseCompare>("table: sort without case", CaseColumn, [](const QVariant& left, const QVariant& right) {
        return left.toString().compare(right.toString(), Qt::CaseInsensitive) > 0;
    });
    compare(
        "table: filter, every second row goes", [](benchmark::State& state) { filterOurs(state, true); },
        [](benchmark::State& state) { filterYardstick(state, true); });
    compare(
        "table: filter, every second row comes", [](benchmark::State& state) { filterOurs(state, false); },
        [](benchmark::State& state) { filterYardstick(state, false); });
    compare(
        "table: isSelected, 100,000 ranges by one", [](benchmark::State& state) { readSelection(state, 100'000); },
        [](benchmark::State& state) { readSelection(state, 1); });
    compare("table: data of a million cells", readCells<velm::SortFilterSelectModel>, readCells<QSortFilterProxyModel>);
}
} // namespace velmbench
