#include "panels/entitytablemodel.h"

#include "drawing/entitykind.h"
#include "od/oddbdatabase.h"
#include "panels/cellkind.h"
#include "panels/propertytexts.h"
#include "velm/bridge/conversions.h"

#include <QColor>

#include <algorithm>
#include <utility>

namespace workbench {
namespace {
velm::Columns makeColumns()
{
    using M = EntityTableModel;
    // A comparison as texts takes an empty cell for equal to every other; by the values' types it comes last.
    const velm::SortType mayBeEmpty = velm::SortByValueType;
    velm::Columns result;
    result.columns = {
        tableColumn(M::NumberColumn, CellKind::Number, M::tr("No."), "number", 50).sortType(velm::SortInteger),
        tableColumn(M::KindColumn, CellKind::Text, M::tr("Type"), "type", 85).sortType(velm::SortAlphanumeric),
        tableColumn(M::LayerColumn, CellKind::Text, M::tr("Layer"), "layer", 90).sortType(velm::SortAlphanumeric),
        tableColumn(M::ColorColumn, CellKind::Color, M::tr("Colour"), "color", 90).sortType(velm::SortAlphanumeric),
        tableColumn(M::LinetypeColumn, CellKind::Text, M::tr("Linetype"), "linetype", 80)
            .sortType(velm::SortAlphanumeric),
        tableColumn(M::LineWeightColumn, CellKind::Number, M::tr("Lineweight"), "lineweight", 84)
            .sortType(velm::SortInteger),
        tableColumn(M::LengthColumn, CellKind::Number, M::tr("Length"), "length", 80).sortType(mayBeEmpty),
        tableColumn(M::RadiusColumn, CellKind::Number, M::tr("Radius"), "radius", 72).sortType(mayBeEmpty),
        tableColumn(M::AreaColumn, CellKind::Number, M::tr("Area"), "area", 100).sortType(mayBeEmpty),
        tableColumn(M::StartXColumn, CellKind::Number, M::tr("Start X"), "startx", 72).sortType(velm::SortDouble),
        tableColumn(M::StartYColumn, CellKind::Number, M::tr("Start Y"), "starty", 72).sortType(velm::SortDouble),
        tableColumn(M::TextColumn, CellKind::Text, M::tr("Text"), "text", 110).sortType(velm::SortAlphanumeric),
    };
    return result;
}

QVariant optional(const std::optional<double>& number)
{
    return number ? QVariant(*number) : QVariant();
}
} // namespace

EntityTableModel::EntityTableModel(QObject* parent) : QAbstractTableModel(parent), m_columns(makeColumns())
{}

void EntityTableModel::setDatabase(OdDbDatabase* database)
{
    beginResetModel();
    m_database = database;
    m_texts = {};
    m_rows = collect();
    m_units = database ? database->formatter().units() : OdUnits();
    endResetModel();
}

int EntityTableModel::nameOf(OdDbObjectId record, const QString& ifNone)
{
    const auto [found, isNew] = m_names.try_emplace(record);
    if (isNew) {
        const auto* opened = record.open<OdDbSymbolTableRecord>();
        found->second = m_texts.number(opened ? velm::toQt(opened->getName()) : ifNone);
    }
    return found->second;
}

int EntityTableModel::kindOf(const OdDbEntity& entity)
{
    const auto* insert = dynamic_cast<const OdDbBlockReference*>(&entity);
    const auto [found, isNew] =
        m_kinds.try_emplace({std::type_index(typeid(entity)), insert ? insert->blockTableRecord : OdDbObjectId::kNull});
    if (isNew)
        found->second = m_texts.number(velm::toQt(entityKind(entity)));
    return found->second;
}

EntityTableModel::Row EntityTableModel::makeRow(const OdDbEntity& entity)
{
    Row row{entity.objectId(), entityGeometry(entity), {}, entity.lineWeight(), entity.color()};
    const auto* text = dynamic_cast<const OdDbText*>(&entity);
    row.texts = {kindOf(entity), nameOf(entity.layerId(), {}), m_texts.number(colorText(entity.color())),
                 nameOf(entity.linetypeId(), tr("ByLayer")),
                 m_texts.number(text ? velm::toQt(text->textString).simplified() : QString())};
    if (row.drawnColor.isByLayer())
        if (const auto* layer = entity.layerId().open<OdDbLayerTableRecord>())
            row.drawnColor = layer->color();
    return row;
}

std::vector<EntityTableModel::Row> EntityTableModel::collect()
{
    std::vector<Row> rows;
    if (!m_database)
        return rows;
    const OdArray<OdDbObjectId>& entities = m_database->modelSpace()->entities();
    rows.reserve(entities.size());
    for (const OdDbObjectId& id : entities)
        if (const auto* entity = static_cast<const OdDbEntity*>(id.openObject()))
            rows.push_back(makeRow(*entity));
    // The names may be others next time.
    m_names.clear();
    m_kinds.clear();
    return rows;
}

void EntityTableModel::removeErased()
{
    for (int last = rowCount() - 1; last >= 0; --last) {
        int first = last + 1;
        while (first > 0 && !entity(first - 1).openObject())
            --first;
        if (first <= last) {
            beginRemoveRows({}, first, last);
            m_rows.erase(m_rows.begin() + first, m_rows.begin() + last + 1);
            endRemoveRows();
            last = first;
        }
    }
}

void EntityTableModel::refresh()
{
    removeErased();
    refreshUnits();
    std::vector<Row> rows = collect();
    // New entities come last, and their ids are the highest.
    const std::size_t known = m_rows.size();
    for (std::size_t first = 0; first < known; ++first) {
        std::size_t end = first;
        while (end < known && m_rows[end] != rows[end])
            ++end;
        if (end == first)
            continue;
        std::copy(rows.begin() + static_cast<std::ptrdiff_t>(first), rows.begin() + static_cast<std::ptrdiff_t>(end),
                  m_rows.begin() + static_cast<std::ptrdiff_t>(first));
        Q_EMIT dataChanged(index(static_cast<int>(first), 0), index(static_cast<int>(end) - 1, ColumnCount - 1));
        first = end;
    }
    if (rows.size() == known)
        return;
    beginInsertRows({}, static_cast<int>(known), static_cast<int>(rows.size()) - 1);
    m_rows = std::move(rows);
    endInsertRows();
}

void EntityTableModel::refreshUnits()
{
    const OdUnits units = m_database ? m_database->formatter().units() : OdUnits();
    if (std::exchange(m_units, units) != units && !m_rows.empty())
        Q_EMIT dataChanged(index(0, LengthColumn), index(rowCount() - 1, StartYColumn), {Qt::DisplayRole});
}

void EntityTableModel::setDarkBackground(bool dark)
{
    m_darkBackground = dark;
    if (!m_rows.empty())
        Q_EMIT dataChanged(index(0, ColorColumn), index(rowCount() - 1, ColorColumn), {Qt::DecorationRole});
}

OdDbObjectId EntityTableModel::entity(int row) const
{
    return row < 0 || row >= rowCount() ? OdDbObjectId::kNull : m_rows[static_cast<std::size_t>(row)].id;
}

int EntityTableModel::row(OdDbObjectId entity) const
{
    const auto found = std::ranges::lower_bound(m_rows, entity, {}, &Row::id);
    return found == m_rows.end() || found->id != entity ? -1 : static_cast<int>(found - m_rows.begin());
}

int EntityTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int EntityTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant EntityTableModel::value(const Row& row, int column) const
{
    switch (column) {
    case NumberColumn:
        return row.id.index();
    case KindColumn:
        return m_texts.value(row.texts[KindText]);
    case LayerColumn:
        return m_texts.value(row.texts[LayerText]);
    case ColorColumn:
        return m_texts.value(row.texts[ColorText]);
    case LinetypeColumn:
        return m_texts.value(row.texts[LinetypeText]);
    case LineWeightColumn:
        return row.lineWeight;
    case LengthColumn:
        return optional(row.geometry.length);
    case RadiusColumn:
        return optional(row.geometry.radius);
    case AreaColumn:
        return optional(row.geometry.area);
    case StartXColumn:
        return row.geometry.start.x;
    case StartYColumn:
        return row.geometry.start.y;
    case TextColumn:
        return m_texts.value(row.texts[ContentText]);
    default:
        return {};
    }
}

QVariant EntityTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
    if (role == Qt::DecorationRole && index.column() == ColorColumn)
        return velm::toQtColor(row.drawnColor, odcmIndexPalette(m_darkBackground));
    if (role != Qt::DisplayRole && role != Qt::EditRole)
        return {};
    const QVariant result = value(row, index.column());
    if (role == Qt::EditRole)
        return result;
    if (index.column() == LineWeightColumn)
        return lineWeightText(row.lineWeight);
    // Only the rows on the screen are written as the drawing writes values.
    if (index.column() == AreaColumn && result.isValid())
        return QString::number(result.toDouble(), 'f', m_database->formatter().units().linearPrecision);
    if (result.typeId() == QMetaType::Double)
        return velm::toQt(m_database->formatter().formatLinear(result.toDouble()));
    return result;
}

QVariant EntityTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    return velm::headerData(m_columns, section, orientation, role);
}
} // namespace workbench
