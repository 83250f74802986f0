#include "panels/entitytablemodel.h"

#include "drawing/entitykind.h"
#include "od/oddbdatabase.h"
#include "panels/cellkind.h"
#include "panels/propertytexts.h"
#include "velm/bridge/conversions.h"

#include <QColor>

#include <algorithm>

namespace workbench {
namespace {
constexpr Qt::Alignment left = Qt::AlignLeft | Qt::AlignVCenter;
constexpr Qt::Alignment right = Qt::AlignRight | Qt::AlignVCenter;

velm::ColumnBuilder column(int property, CellKind kind, const QString& name, const char* id, velm::SortType sortType,
                           int width)
{
    velm::ColumnBuilder result(property, static_cast<int>(kind), name, QString::fromLatin1(id));
    result.sortType(sortType).initialWidth(width).textAlignment(kind == CellKind::Number ? right : left);
    return result;
}

velm::Columns makeColumns()
{
    using M = EntityTableModel;
    const auto text = [](int property, const QString& name, const char* id, int width) {
        return column(property, CellKind::Text, name, id, velm::SortAlphanumeric, width);
    };
    const auto number = [](int property, const QString& name, const char* id, velm::SortType sortType) {
        return column(property, CellKind::Number, name, id, sortType, 80);
    };
    // A comparison as texts takes an empty cell for equal to every other; by the values' types it comes last.
    const velm::SortType mayBeEmpty = velm::SortByValueType;
    velm::Columns result;
    result.columns = {
        column(M::NumberColumn, CellKind::Number, M::tr("No."), "number", velm::SortInteger, 60),
        text(M::KindColumn, M::tr("Type"), "type", 100),
        text(M::LayerColumn, M::tr("Layer"), "layer", 100),
        column(M::ColorColumn, CellKind::Color, M::tr("Colour"), "color", velm::SortAlphanumeric, 100),
        text(M::LinetypeColumn, M::tr("Linetype"), "linetype", 90),
        column(M::LineWeightColumn, CellKind::Number, M::tr("Lineweight"), "lineweight", velm::SortInteger, 80),
        number(M::LengthColumn, M::tr("Length"), "length", mayBeEmpty),
        number(M::RadiusColumn, M::tr("Radius"), "radius", mayBeEmpty),
        number(M::AreaColumn, M::tr("Area"), "area", mayBeEmpty),
        number(M::StartXColumn, M::tr("Start X"), "startx", velm::SortDouble),
        number(M::StartYColumn, M::tr("Start Y"), "starty", velm::SortDouble),
        text(M::TextColumn, M::tr("Text"), "text", 160),
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
                 nameOf(entity.linetypeId(), tr("By layer")),
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
        return m_texts.text(row.texts[KindText]);
    case LayerColumn:
        return m_texts.text(row.texts[LayerText]);
    case ColorColumn:
        return m_texts.text(row.texts[ColorText]);
    case LinetypeColumn:
        return m_texts.text(row.texts[LinetypeText]);
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
        return m_texts.text(row.texts[ContentText]);
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
