#include "panels/layertablemodel.h"

#include "panels/cellkind.h"
#include "panels/propertytexts.h"
#include "ut/names.h"
#include "velm/bridge/conversions.h"
#include "velm/bridge/strings.h"

namespace workbench {
namespace {
const OdDbLayerTableRecord& layerOf(const OdDbSymbolTableRecord& record)
{
    return static_cast<const OdDbLayerTableRecord&>(record);
}

/// Every drawing has it.
bool isLayerZero(const OdDbSymbolTableRecord& layer)
{
    return layer.getName() == OdString(L"0");
}

velm::Columns columns()
{
    using Model = LayerTableModel;
    velm::Columns columns;
    columns.initialSortColumn = Model::NameColumn;
    columns.columns = {
        tableColumn(Model::NameColumn, CellKind::Text, Model::tr("Name"), "name", 116).sortType(velm::SortAlphanumeric),
        tableColumn(Model::OnColumn, CellKind::Check, Model::tr("On"), "on", 30),
        tableColumn(Model::FrozenColumn, CellKind::Check, Model::tr("Frozen"), "frozen", 56),
        tableColumn(Model::LockedColumn, CellKind::Check, Model::tr("Locked"), "locked", 58),
        tableColumn(Model::ColorColumn, CellKind::Color, Model::tr("Colour"), "color", 76)
            .sortType(velm::SortAlphanumeric),
        tableColumn(Model::LinetypeColumn, CellKind::Choice, Model::tr("Linetype"), "linetype", 100)
            .sortType(velm::SortAlphanumeric),
        // By their values, since all have two decimals.
        tableColumn(Model::LineWeightColumn, CellKind::Choice, Model::tr("Lineweight"), "lineweight", 90)
            .sortType(velm::SortAlphanumeric),
        tableColumn(Model::PlotStyleColumn, CellKind::Text, Model::tr("Plot style"), "plotstyle", 90)
            .sortType(velm::SortPlotStyle)
            .initiallyVisible(false),
        tableColumn(Model::DescriptionColumn, CellKind::Text, Model::tr("Description"), "description", 160)
            .sortType(velm::SortAlphanumeric),
        tableColumn(Model::EntitiesColumn, CellKind::Number, Model::tr("Entities"), "entities", 70)
            .sortType(velm::SortInteger)
            .initialSortOrder(Qt::DescendingOrder)
            .nameInMenu(Model::tr("Number of entities")),
    };
    return columns;
}
} // namespace

LayerTableModel::LayerTableModel(QObject* parent) : RecordTableModel(columns(), parent)
{}

void LayerTableModel::setDarkBackground(bool dark)
{
    m_darkBackground = dark;
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, ColorColumn), index(rowCount() - 1, ColorColumn), {Qt::DecorationRole});
}

bool LayerTableModel::isRenamable(int row) const
{
    const OdDbSymbolTableRecord* layer = record(row);
    return layer && !isLayerZero(*layer);
}

QString LayerTableModel::nameProblem(const OdDbSymbolTableRecord& layer, const QString& name) const
{
    if (name.trimmed().isEmpty())
        return tr("A layer needs a name.");
    const QString forbidden = velm::toQt(ut::getForbiddenCharacters());
    for (const QChar character : name)
        if (forbidden.contains(character))
            return tr("A name can't contain any of these characters: %1").arg(forbidden);
    const OdDbLayerTableRecord* other = database()->findLayer(velm::odFromQt(name.trimmed()));
    if (other && other != &layer)
        return tr("The drawing has a layer \"%1\" already.").arg(velm::toQt(other->getName()));
    return {};
}

std::vector<OdDbObjectId> LayerTableModel::records(const OdDbDatabase& database) const
{
    return idsOf(database.layers());
}

void LayerTableModel::survey(const OdDbDatabase& database)
{
    m_entityCounts.clear();
    OdDbObjectId layer;
    int* count = nullptr;
    for (const OdDbBlockTableRecord* block : database.blocks())
        for (const OdDbObjectId& id : block->entities())
            if (const auto* entity = static_cast<const OdDbEntity*>(id.openObject())) {
                // Neighbours are mostly on the same layer.
                if (!count || layer != entity->layerId()) {
                    layer = entity->layerId();
                    count = &m_entityCounts[layer];
                }
                ++*count;
            }
}

QVariant LayerTableModel::shown(const OdDbSymbolTableRecord& record, int column) const
{
    const OdDbLayerTableRecord& layer = layerOf(record);
    switch (column) {
    case NameColumn:
        return velm::toQt(layer.getName());
    case OnColumn:
        return !layer.isOff();
    case FrozenColumn:
        return layer.isFrozen();
    case LockedColumn:
        return layer.isLocked();
    case ColorColumn:
        return colorText(layer.color());
    case LinetypeColumn:
        return recordText(layerLinetype(layer));
    case LineWeightColumn:
        return lineWeightText(layer.lineWeight());
    case PlotStyleColumn:
        if (layer.plotStyleName().isEmpty())
            return QStringLiteral("%1 %2").arg(velm::toQt(velm::Strings::strColor())).arg(layer.color().colorIndex());
        return velm::toQt(layer.plotStyleName());
    case DescriptionColumn:
        return velm::toQt(layer.description());
    case EntitiesColumn: {
        const auto count = m_entityCounts.find(layer.objectId());
        return count == m_entityCounts.end() ? 0 : count->second;
    }
    default:
        return {};
    }
}

ObjectField LayerTableModel::field(OdDbSymbolTableRecord& record, int column) const
{
    using Type = ObjectField::Type;
    auto& layer = static_cast<OdDbLayerTableRecord&>(record);
    const auto editable = [&](Type type, std::function<void(const QVariant&)> apply) {
        return ObjectField{{}, type, shown(layer, column), {}, std::move(apply), {}};
    };
    switch (column) {
    case NameColumn:
        if (isLayerZero(layer))
            return editable(Type::Text, {});
        return editable(Type::Text, [&layer](const QVariant& name) {
            layer.database()->rename(layer, velm::odFromQt(name.toString().trimmed()));
        });
    case OnColumn:
        return editable(Type::CheckBox, [&layer](const QVariant& on) { layer.setIsOff(!on.toBool()); });
    case FrozenColumn:
        return editable(Type::CheckBox, [&layer](const QVariant& frozen) { layer.setIsFrozen(frozen.toBool()); });
    case LockedColumn:
        return editable(Type::CheckBox, [&layer](const QVariant& locked) { layer.setIsLocked(locked.toBool()); });
    case ColorColumn:
        return colorField(layer);
    case LinetypeColumn:
        return linetypeField(layer);
    case LineWeightColumn:
        return lineWeightField(layer);
    case DescriptionColumn:
        return editable(Type::Text,
                        [&layer](const QVariant& text) { layer.setDescription(velm::odFromQt(text.toString())); });
    default:
        return editable(Type::Text, {});
    }
}

QString LayerTableModel::problem(const OdDbSymbolTableRecord& record, int column, const QVariant& value) const
{
    return column == NameColumn ? nameProblem(record, value.toString()) : QString();
}

QVariant LayerTableModel::decoration(const OdDbSymbolTableRecord& record, int column) const
{
    if (column != ColorColumn)
        return {};
    return velm::toQtColor(layerOf(record).color(), odcmIndexPalette(m_darkBackground));
}
} // namespace workbench
