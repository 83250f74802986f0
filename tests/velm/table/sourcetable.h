#pragma once

#include "velm/table/columns.h"
#include "velm/table/sortfilterselectmodel.h"

#include "support/scopes.h"
#include "support/signallog.h"

#include <QAbstractItemModelTester>
#include <QTest>

#include <algorithm>
#include <functional>
#include <numeric>
#include <optional>
#include <utility>

namespace velmtest {
/// A flat source whose columns are named by one letter each, which is their id as well.
class SourceTable : public QAbstractTableModel
{
public:
    using Row = std::vector<QVariant>;

    /// Rows by '|', cells by blanks: "ABC", "a1 b1 c1|a2 b2 c2". Whole numbers become ints; "-" is no value.
    explicit SourceTable(const QString& names = {}, const QString& text = {})
    {
        for (const QChar name : names)
            columns.columns.push_back(column(name));
        if (text.isEmpty())
            return;
        for (const QString& row : text.split('|')) {
            rows.emplace_back();
            for (const QString& cell : row.split(' ')) {
                bool isNumber = false;
                const int number = cell.toInt(&isNumber);
                rows.back().push_back(isNumber ? QVariant(number) : cell == "-" ? QVariant() : QVariant(cell));
            }
        }
    }

    static velm::ColumnData column(QChar name) { return velm::ColumnBuilder(-1, -1, name, name); }

    velm::Columns columns;
    std::vector<Row> rows;
    QHash<int, QByteArray> names = QAbstractTableModel::roleNames();
    /// Other answers to headerData, by column and role.
    QHash<std::pair<int, int>, QVariant> headers;
    /// The cells of inserted columns: the column's name in lower case and the number of the row.
    std::function<QVariant(const velm::ColumnData&, int row)> newCell = [](const velm::ColumnData& column, int row) {
        return QVariant(column.name.toLower() + QString::number(row + 1));
    };
    QStringList sorts; ///< calls of sort(), which makes the order of the texts

    velm::ColumnData& operator[](int index) { return columns.columns[static_cast<std::size_t>(index)]; }

    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(rows.size());
    }
    int columnCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(columns.columns.size());
    }
    QHash<int, QByteArray> roleNames() const override { return names; }
    QVariant data(const QModelIndex& index, int role) const override
    {
        return role == Qt::DisplayRole
                   ? rows[static_cast<std::size_t>(index.row())][static_cast<std::size_t>(index.column())]
                   : QVariant();
    }
    bool setData(const QModelIndex& index, const QVariant& value, int = Qt::EditRole) override
    {
        rows[static_cast<std::size_t>(index.row())][static_cast<std::size_t>(index.column())] = value;
        Q_EMIT dataChanged(index, index, {Qt::DisplayRole});
        return true;
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        const auto other = headers.constFind({section, role});
        return other != headers.cend() ? *other : velm::headerData(columns, section, orientation, role);
    }
    void sort(int column, Qt::SortOrder order) override
    {
        sorts += QString("%1%2").arg(column).arg(order == Qt::AscendingOrder ? "+" : "-");
        if (column < 0)
            return;
        permute([&](const Row& left, const Row& right) {
            const auto at = static_cast<std::size_t>(column);
            return order == Qt::AscendingOrder ? left[at].toString() < right[at].toString()
                                               : right[at].toString() < left[at].toString();
        });
    }
    /// A change of the layout that sorts the rows.
    void permute(const std::function<bool(const Row&, const Row&)>& less)
    {
        Q_EMIT layoutAboutToBeChanged();
        std::vector<int> order(rows.size());
        std::iota(order.begin(), order.end(), 0);
        std::stable_sort(order.begin(), order.end(), [&](int left, int right) {
            return less(rows[static_cast<std::size_t>(left)], rows[static_cast<std::size_t>(right)]);
        });
        const std::vector<Row> before = rows;
        std::vector<int> places(rows.size());
        for (std::size_t place = 0; place < order.size(); ++place) {
            rows[place] = before[static_cast<std::size_t>(order[place])];
            places[static_cast<std::size_t>(order[place])] = static_cast<int>(place);
        }
        for (const QModelIndex& index : persistentIndexList())
            changePersistentIndex(index, createIndex(places[static_cast<std::size_t>(index.row())], index.column()));
        Q_EMIT layoutChanged();
    }

    void insert(int row, const std::vector<Row>& added)
    {
        if (added.empty())
            return;
        beginInsertRows({}, row, row + static_cast<int>(added.size()) - 1);
        rows.insert(rows.begin() + row, added.begin(), added.end());
        endInsertRows();
    }
    void remove(int first, int last)
    {
        beginRemoveRows({}, first, last);
        rows.erase(rows.begin() + first, rows.begin() + last + 1);
        endRemoveRows();
    }
    void move(int from, int to)
    {
        if (!beginMoveRows({}, from, from, {}, to > from ? to + 1 : to))
            return;
        const Row row = rows[static_cast<std::size_t>(from)];
        rows.erase(rows.begin() + from);
        rows.insert(rows.begin() + to, row);
        endMoveRows();
    }
    void insertColumns(int at, const std::vector<velm::ColumnData>& added)
    {
        beginInsertColumns({}, at, at + static_cast<int>(added.size()) - 1);
        columns.columns.insert(columns.columns.begin() + at, added.begin(), added.end());
        for (std::size_t row = 0; row < rows.size(); ++row)
            for (std::size_t column = 0; column < added.size(); ++column)
                rows[row].insert(rows[row].begin() + at + static_cast<int>(column),
                                 newCell(added[column], static_cast<int>(row)));
        endInsertColumns();
    }
    void removeColumns(int first, int last)
    {
        beginRemoveColumns({}, first, last);
        for (Row& row : rows)
            row.erase(row.begin() + first, row.begin() + last + 1);
        columns.columns.erase(columns.columns.begin() + first, columns.columns.begin() + last + 1);
        endRemoveColumns();
    }
    void reset(const std::function<void()>& change = {})
    {
        beginResetModel();
        if (change)
            change();
        endResetModel();
    }
};

/// Shows the rows that a function accepts.
class Filter : public velm::RowFilter
{
public:
    std::function<bool(QAbstractItemModel*, int row, QModelIndex parent)> accepts;

    bool rowFilter(QAbstractItemModel* source, int row, QModelIndex parent) override
    {
        return !accepts || accepts(source, row, parent);
    }
    /// Keeps the top-level rows whose first cell isn't in the list.
    void hide(const QStringList& hidden)
    {
        accepts = [=](QAbstractItemModel* source, int row, QModelIndex parent) {
            return !hidden.contains(source->index(row, 0, parent).data().toString());
        };
        Q_EMIT invalidate();
    }
};

/// All cells: "b1 a1|b2 a2".
inline QString cellText(const QAbstractItemModel& model)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column)
            cells += model.index(row, column).data().toString();
        rows += cells.join(' ');
    }
    return rows.join('|');
}

/// The titles of all columns: "BA".
inline QString columnText(const QAbstractItemModel& model)
{
    QString text;
    for (int column = 0; column < model.columnCount(); ++column)
        text += model.headerData(column, Qt::Horizontal).toString();
    return text;
}

inline int roleNumber(const QAbstractItemModel& model, const char* name)
{
    return model.roleNames().key(name, -2);
}

/// The cells whose role is true, as marks in a row: "xx.|...".
inline QString marks(const QAbstractItemModel& model, const char* role, const QModelIndex& parent = {})
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        QString cells;
        for (int column = 0; column < model.columnCount(parent); ++column)
            cells += model.index(row, column, parent).data(roleNumber(model, role)).toBool() ? 'x' : '.';
        rows += cells;
    }
    return rows.join('|');
}

/// Tests of a table, each of which begins with settings, a source and a table of its own.
class TableTest : public QObject
{
protected:
    void begin(const QString& names, const QString& text)
    {
        m_tester.reset();
        m_table.reset();
        m_store.emplace();
        m_source.emplace(names, text);
        m_table.emplace();
        m_tester.emplace(&*m_table, QAbstractItemModelTester::FailureReportingMode::QtTest);
        m_table->setSourceModel(&*m_source);
    }

    std::optional<TemporaryConfig> m_store;
    std::optional<SourceTable> m_source;
    std::optional<velm::SortFilterSelectModel> m_table;
    std::optional<QAbstractItemModelTester> m_tester;
};

/// What of a log is the table's own: without the signals of every item model.
inline QString own(SignalLog& log)
{
    QStringList told = log.take().split(' ');
    told.removeIf([](const QString& entry) {
        static const QStringList names = {"selectionChanged", "proxySortColumnChanged",      "ascendingChanged",
                                          "filterChanged",    "hasInitialSortColumnChanged", "sortColumnChanged"};
        return !names.contains(entry.section('(', 0, 0));
    });
    return told.join(' ');
}
} // namespace velmtest
