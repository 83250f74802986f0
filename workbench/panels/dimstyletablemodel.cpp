#include "panels/dimstyletablemodel.h"

#include "panels/cellkind.h"
#include "velm/bridge/conversions.h"
#include "velm/drawingprops/dimensiontypes.h"

#include <cmath>

namespace workbench {
namespace {
constexpr int mostDecimals = 8;

velm::Columns columns()
{
    using Model = DimStyleTableModel;
    velm::Columns columns;
    columns.initialSortColumn = Model::NameColumn;
    columns.columns = {
        tableColumn(Model::NameColumn, CellKind::Text, Model::tr("Name"), "name", 140).sortType(velm::SortDimStyle),
        tableColumn(Model::TypeColumn, CellKind::Text, Model::tr("Dimensions"), "type", 90)
            .sortType(velm::SortAlphanumeric),
        tableColumn(Model::TextHeightColumn, CellKind::Number, Model::tr("Text height"), "textheight", 80)
            .sortType(velm::SortDouble),
        tableColumn(Model::ArrowSizeColumn, CellKind::Number, Model::tr("Arrow size"), "arrowsize", 80)
            .sortType(velm::SortDouble),
        tableColumn(Model::ScaleColumn, CellKind::Number, Model::tr("Scale"), "scale", 60).sortType(velm::SortDouble),
        tableColumn(Model::DecimalsColumn, CellKind::Number, Model::tr("Decimals"), "decimals", 70)
            .sortType(velm::SortInteger),
        tableColumn(Model::TextStyleColumn, CellKind::Choice, Model::tr("Text style"), "textstyle", 90)
            .sortType(velm::SortAlphanumeric),
    };
    return columns;
}
} // namespace

DimStyleTableModel::DimStyleTableModel(QObject* parent) : RecordTableModel(columns(), parent)
{}

std::vector<OdDbObjectId> DimStyleTableModel::records(const OdDbDatabase& database) const
{
    return idsOf(database.dimStyles());
}

QVariant DimStyleTableModel::shown(const OdDbSymbolTableRecord& record, int column) const
{
    const auto& style = static_cast<const OdDbDimStyleTableRecord&>(record);
    switch (column) {
    case NameColumn:
        return velm::toQt(velm::toDisplayName(style.getName().c_str(), database()));
    case TypeColumn: {
        const wxString name = velm::toDisplayName(style.getName().c_str(), database());
        const velm::CDimensionTypeInfo* type =
            name == style.getName().c_str() ? nullptr : velm::getDimensionType(OdString(name.wc_str()));
        return type ? velm::toQt(type->name()) : tr("All");
    }
    case TextHeightColumn:
        return style.dimtxt();
    case ArrowSizeColumn:
        return style.dimasz();
    case ScaleColumn:
        return style.dimscale();
    case DecimalsColumn:
        return style.dimdec();
    case TextStyleColumn:
        return recordText(style.dimtxsty());
    default:
        return {};
    }
}

ObjectField DimStyleTableModel::field(OdDbSymbolTableRecord& record, int column) const
{
    auto& style = static_cast<OdDbDimStyleTableRecord&>(record);
    const auto number = [&](std::function<void(const QVariant&)> apply) {
        return ObjectField{{}, ObjectField::Type::Text, shown(style, column), {}, std::move(apply), {}};
    };
    switch (column) {
    case TextHeightColumn:
        return number([&style](const QVariant& height) { style.setDimtxt(height.toDouble()); });
    case ArrowSizeColumn:
        return number([&style](const QVariant& size) { style.setDimasz(size.toDouble()); });
    case ScaleColumn:
        return number([&style](const QVariant& scale) { style.setDimscale(scale.toDouble()); });
    case DecimalsColumn:
        return number([&style](const QVariant& decimals) { style.setDimdec(decimals.toInt()); });
    case TextStyleColumn:
        return choiceField<OdDbObjectId>({}, idsOf(database()->textStyles()), recordText, style.dimtxsty(),
                                         [&style](OdDbObjectId textStyle) { style.setDimtxsty(textStyle); });
    default:
        return number({});
    }
}

QString DimStyleTableModel::problem(const OdDbSymbolTableRecord&, int column, const QVariant& value) const
{
    const double number = value.toDouble();
    switch (column) {
    case TextHeightColumn:
        return std::isfinite(number) && number > 0 ? QString() : tr("A text height is above zero.");
    case ArrowSizeColumn:
    case ScaleColumn:
        return std::isfinite(number) && number >= 0 ? QString() : tr("A size is zero or above.");
    case DecimalsColumn:
        return number >= 0 && number <= mostDecimals ? QString() : tr("There are 0 to %1 decimals.").arg(mostDecimals);
    default:
        return {};
    }
}
} // namespace workbench
