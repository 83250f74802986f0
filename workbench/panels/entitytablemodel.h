#pragma once

#include "drawing/entitygeometry.h"
#include "od/odunitsformatter.h"
#include "panels/valuepool.h"
#include "velm/table/columns.h"

#include <QAbstractTableModel>

#include <array>
#include <map>
#include <typeindex>

class OdDbDatabase;

namespace workbench {
/// The entities of a drawing's model space, one a row, in the order of the drawing. Rows hold what they show: nothing
/// is looked up when a table sorts or scrolls. Qt::EditRole gives bare values, for sorting: numbers and texts.
class EntityTableModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column
    {
        NumberColumn,
        KindColumn,
        LayerColumn,
        ColorColumn,
        LinetypeColumn,
        LineWeightColumn,
        LengthColumn,
        RadiusColumn,
        AreaColumn,
        StartXColumn,
        StartYColumn,
        TextColumn,
        ColumnCount
    };

    explicit EntityTableModel(QObject* parent = nullptr);

    /// Not owned; null for no entities.
    void setDatabase(OdDbDatabase* database);
    OdDbDatabase* database() const { return m_database; }
    /// To call after a change of the drawing: tells which rows came, went and changed.
    void refresh();
    /// The standard colour is white on a dark background and black on a light one.
    void setDarkBackground(bool dark);

    /// Null for a row that doesn't exist.
    OdDbObjectId entity(int row) const;
    /// -1 for an entity without a row.
    int row(OdDbObjectId entity) const;
    /// Whether the predicate, on the number of a text in the pool, holds for a text of the row.
    template <typename Predicate>
    bool hasText(int row, Predicate predicate) const
    {
        const auto& texts = m_rows[static_cast<std::size_t>(row)].texts;
        return std::any_of(texts.begin(), texts.end(), predicate);
    }
    const TextPool& texts() const { return m_texts; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    enum Text
    {
        KindText,
        LayerText,
        ColorText,
        LinetypeText,
        ContentText,
        TextCount
    };
    struct Row
    {
        OdDbObjectId id;
        EntityGeometry geometry;
        std::array<int, TextCount> texts{}; // numbers in the pool
        int lineWeight = 0;
        OdCmColor drawnColor;

        friend bool operator==(const Row&, const Row&) = default;
    };

    Row makeRow(const OdDbEntity& entity);
    std::vector<Row> collect();
    int nameOf(OdDbObjectId record, const QString& ifNone);
    int kindOf(const OdDbEntity& entity);
    void removeErased();
    /// Other units are a change of texts only.
    void refreshUnits();
    QVariant value(const Row& row, int column) const;

    OdDbDatabase* m_database = nullptr; // not owned
    OdUnits m_units;                    // in which the texts were written
    velm::Columns m_columns;
    std::vector<Row> m_rows; // by rising id
    TextPool m_texts;
    // While rows are collected.
    std::map<OdDbObjectId, int> m_names;
    std::map<std::pair<std::type_index, OdDbObjectId>, int> m_kinds;
    bool m_darkBackground = true;
};
} // namespace workbench
