#pragma once

#include "shownpage.h"
#include "velm/table/columns.h"
#include "velm/table/sortfilterselectmodel.h"

#include <QAbstractItemModelTester>

namespace velmtest {
using namespace velm;

/// SampleRows of a name, a mark, a number and a note. Row 0 is "Row 0" with the number 0; the numbers repeat after 5.
class SampleRows : public QAbstractTableModel
{
public:
    explicit SampleRows(int count) : m_count(count)
    {
        m_columns.columns = {
            ColumnBuilder(1, 0, QStringLiteral("Name"), QStringLiteral("name")).textAlignment(Qt::AlignLeft),
            ColumnBuilder(2, 1, QStringLiteral("On"), QStringLiteral("on")).initialWidth(60),
            ColumnBuilder(3, 3, QStringLiteral("Count"), QStringLiteral("count"))
                .initialSortOrder(Qt::DescendingOrder)
                .textAlignment(Qt::AlignRight),
            ColumnBuilder(4, 0, QStringLiteral("Note"), QStringLiteral("note")),
        };
    }

    QHash<int, QByteArray> ownNames; ///< of roles beside the usual ones

    Columns& columns() { return m_columns; }
    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : m_count; }
    int columnCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : int(m_columns.columns.size());
    }
    QHash<int, QByteArray> roleNames() const override
    {
        auto names = QAbstractTableModel::roleNames();
        names[Qt::CheckStateRole] = "checkState";
        names.insert(ownNames);
        return names;
    }
    Qt::ItemFlags flags(const QModelIndex& index) const override
    {
        return QAbstractTableModel::flags(index) | (index.column() == 0   ? Qt::ItemIsEditable
                                                    : index.column() == 1 ? Qt::ItemIsUserCheckable
                                                                          : Qt::NoItemFlags);
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override
    {
        return velm::headerData(m_columns, section, orientation, role);
    }
    QVariant data(const QModelIndex& index, int role) const override
    {
        const bool isText = role == Qt::DisplayRole || role == Qt::EditRole;
        const auto written = m_written.constFind({index.row(), index.column()});
        if (written != m_written.constEnd() && (index.column() == 1 ? role == Qt::CheckStateRole : isText))
            return *written;
        if (role == Qt::CheckStateRole && index.column() == 1)
            return int(Qt::Unchecked);
        if (!isText || index.column() == 1)
            return {};
        if (index.column() == 2)
            return index.row() % 5;
        return QStringLiteral("%1 %2")
            .arg(m_columns.columns[size_t(index.column())].name == QLatin1String("Name") ? QStringLiteral("Row")
                                                                                         : QStringLiteral("Note"))
            .arg(index.row());
    }
    bool setData(const QModelIndex& index, const QVariant& value, int role) override
    {
        if (role != Qt::EditRole && role != Qt::CheckStateRole)
            return false;
        m_written[{index.row(), index.column()}] = value;
        Q_EMIT dataChanged(index, index);
        return true;
    }

private:
    Columns m_columns;
    int m_count;
    QHash<std::pair<int, int>, QVariant> m_written;
};

/// What a repeater makes is no child of the page but for the eye.
inline QQuickItem* findItem(QQuickItem* from, const QString& name)
{
    if (from->objectName() == name)
        return from;
    for (QQuickItem* child : from->childItems()) {
        if (QQuickItem* found = findItem(child, name))
            return found;
    }
    return nullptr;
}

/// A window with a table, which has the keyboard.
class ShownTable
{
public:
    explicit ShownTable(int count = 30, const std::function<void(SampleRows&)>& prepare = {}) : rows(count)
    {
        if (prepare)
            prepare(rows);
        model.setParentId(QStringLiteral("TableOfTest"));
        model.setDefaultEditableColumnId(QStringLiteral("name"));
        model.setSourceModel(&rows);
        // It walks all rows.
        if (count < 1000)
            tester.emplace(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        shown.emplace(m_engine.load("ModelTable { implicitWidth: 480; implicitHeight: 260\n"
                                    "  delegates: ({1: check})\n"
                                    "  Component { id: check; ModelTableCheck {} } }",
                                    {{QStringLiteral("model"), QVariant::fromValue<QObject*>(&model)}}));
        settle();
    }

    QObject* table() const { return shown->page(); }
    QQuickItem* view() const { return table()->property("view").value<QQuickItem*>(); }
    /// Lays out what waits for the next frame.
    void settle()
    {
        QCoreApplication::processEvents();
        shown->window()->grabWindow();
        QCoreApplication::processEvents();
    }
    QQuickItem* cell(int row, int column) const
    {
        QQuickItem* found = nullptr;
        QMetaObject::invokeMethod(view(), "itemAtCell", Q_RETURN_ARG(QQuickItem*, found),
                                  Q_ARG(QPoint, QPoint(column, row)));
        return found;
    }
    QPoint point(int row, int column) const { return centre(cell(row, column)); }
    QQuickItem* title(const QString& name) const
    {
        return findItem(qobject_cast<QQuickItem*>(table()), QStringLiteral("header:") + name);
    }
    /// A point of a title, from its left edge, or from its right one when it is negative.
    QPoint titlePoint(const char* name, int x) const
    {
        QQuickItem* item = title(QString::fromLatin1(name));
        return item->mapToScene(QPointF(x < 0 ? item->width() + x : x, item->height() / 2)).toPoint();
    }
    static QPoint centre(QQuickItem* item)
    {
        return item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
    }
    void click(const QPoint& at, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(shown->window(), button, modifiers, at);
        settle();
    }
    void drag(const QPoint& from, const QPoint& to)
    {
        QTest::mousePress(shown->window(), Qt::LeftButton, {}, from);
        QTest::mouseMove(shown->window(), (from + to) / 2);
        QTest::mouseMove(shown->window(), to);
        QTest::mouseRelease(shown->window(), Qt::LeftButton, {}, to);
        settle();
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        shown->press(key, modifiers);
        settle();
    }
    /// Which rows are selected and where the current one is: "1 2 (2)".
    QString selection() const
    {
        QStringList selected;
        for (int row = 0; row < model.rowCount(); ++row) {
            if (model.isSelected(row, 0))
                selected += QString::number(row);
        }
        const QModelIndex current = model.selectionModel()->currentIndex();
        return selected.join(QLatin1Char(' ')) + (current.isValid() ? QStringLiteral(" (%1)").arg(current.row()) : "");
    }
    /// The titles as they stand from left to right, with the sort mark's column in brackets: "Name [Count] Note".
    QString titles()
    {
        std::map<double, QString> found;
        for (const ColumnData& column : rows.columns().columns) {
            QQuickItem* item = title(column.name);
            if (!item)
                continue;
            const bool isSorted = findItem(item, QStringLiteral("sortMark"))->isVisible();
            found[item->x()] = isSorted ? QLatin1Char('[') + column.name + QLatin1Char(']') : column.name;
        }
        QStringList result;
        for (const auto& [x, name] : found)
            result += name;
        return result.join(QLatin1Char(' '));
    }
    /// What a row's cells show.
    QString texts(int row) const
    {
        QStringList result;
        for (int column = 0; column < model.columnCount(); ++column) {
            const QQuickItem* item = cell(row, column);
            result += item ? item->property("text").toString() : QStringLiteral("-");
        }
        return result.join(QLatin1Char('|'));
    }

    SampleRows rows;
    SortFilterSelectModel model;
    std::optional<QAbstractItemModelTester> tester;
    std::optional<Shown> shown;

private:
    PageEngine m_engine;
};
} // namespace velmtest
