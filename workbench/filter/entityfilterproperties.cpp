#include "filter/entityfilterproperties.h"

#include "drawing/entitykind.h"
#include "drawing/selection.h"
#include "filter/entityrecords.h"
#include "filter/standardcolors.h"
#include "od/odapdocmanager.h"
#include "od/oddbdatabase.h"
#include "velm/bridge/conversions.h"
#include "velm/drawingprops/ilineweightmodel.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace workbench {
namespace {
using P = EntityFilterProperties;
using Kind = velm::filter::EDefaultValueType;

enum class Unit
{
    None,
    Length,
    Area,
    Percent,
};

struct Record
{
    P::Property property;
    Kind kind;
    const char* name;
    const char* group;
    const char* subgroup; // may be null
    const wchar_t* id;    // kept in saved filters and favourites, for ever
    Unit unit = Unit::None;
};

#define NAME(text) QT_TRANSLATE_NOOP("EntityFilter", text)
constexpr Record table[] = {
    {P::Type, Kind::EnumMultiple, NAME("Type"), NAME("General"), nullptr, L"28b995b4-ac40-4877-bb75-18ef57a71824"},
    {P::Layer, Kind::StringMultiple, NAME("Layer"), NAME("General"), nullptr, L"cb2c19fb-feec-4974-bfe2-0263394e949d"},
    {P::LayerDescription, Kind::String, NAME("Layer description"), NAME("General"), nullptr,
     L"3ccc5425-21b3-45de-af47-311d350cfa8d"},
    {P::Color, Kind::Color, NAME("Colour"), NAME("General"), nullptr, L"789eb78b-78ee-4e79-9acc-55634272f016"},
    {P::Linetype, Kind::StringMultiple, NAME("Linetype"), NAME("General"), nullptr,
     L"2ce58e89-689b-4e81-992b-6753e9fc42b3"},
    {P::LineWeight, Kind::LineWeight, NAME("Lineweight"), NAME("General"), nullptr,
     L"70c1e3a4-f5ae-441b-a41d-232374266ec2"},
    {P::Transparency, Kind::Transparency, NAME("Transparency"), NAME("General"), nullptr,
     L"d987c74f-3974-48fe-b79a-c916be708f88", Unit::Percent},
    {P::Visible, Kind::Boolean, NAME("Visible"), NAME("General"), nullptr, L"02d574c6-b460-4f06-83a4-13975bdd3a29"},
    {P::Length, Kind::Real, NAME("Length"), NAME("Geometry"), nullptr, L"9e49c1e9-cd41-4f37-b8f9-d676fe7ed217",
     Unit::Length},
    {P::Radius, Kind::Real, NAME("Radius"), NAME("Geometry"), nullptr, L"e7e0cc24-29b1-43f2-9d78-324e96779b06",
     Unit::Length},
    {P::Vertices, Kind::Integer, NAME("Vertices"), NAME("Geometry"), NAME("Outline"),
     L"216b649f-0297-48bd-8d7f-7c3265bb1ac2"},
    {P::Area, Kind::Real, NAME("Area"), NAME("Geometry"), NAME("Outline"), L"4d3a85f0-9ac1-4651-b733-aeba5c3c58f5",
     Unit::Area},
    {P::Closed, Kind::Boolean, NAME("Closed"), NAME("Geometry"), NAME("Outline"),
     L"868aa2a9-1e2e-4c80-9062-74ae3b3a112e"},
    {P::TextContent, Kind::StringMultiple, NAME("Text"), NAME("Text"), nullptr,
     L"6918c230-a641-4633-9457-1ca067c3bf4a"},
    {P::TextHeight, Kind::Real, NAME("Text height"), NAME("Text"), nullptr, L"9886b46a-c034-45c6-890e-376ba4347e4f",
     Unit::Length},
    {P::TextAlignment, Kind::Enum, NAME("Text alignment"), NAME("Text"), nullptr,
     L"d7863433-6c31-4573-bb4e-571f46707df1"},
    {P::BlockName, Kind::StringMultiple, NAME("Block name"), NAME("Block"), nullptr,
     L"c6436d72-68ea-4a9e-aa06-b1b4c45537ba"},
};
#undef NAME
static_assert(std::size(table) == P::PropertyCount);
static_assert([] {
    for (int row = 0; row < P::PropertyCount; ++row)
        if (table[row].property != row)
            return false;
    return true;
}());

QString translated(const char* text)
{
    return QCoreApplication::translate("EntityFilter", text);
}

/// Null for a bad row.
const Record* recordAt(int row)
{
    return row < 0 || row >= P::PropertyCount ? nullptr : &table[row];
}

QStringList kindNames()
{
    QStringList result;
    for (int kind = 0; kind < static_cast<int>(EntityKind::Other); ++kind)
        result.append(velm::toQt(kindName(static_cast<EntityKind>(kind))));
    return result;
}

/// In the order of OdDbText::HorizontalMode.
QStringList alignments()
{
    return {translated("Left"), translated("Centre"), translated("Right")};
}

/// Of what a person named: the names of the others begin with a star.
template <typename Record>
QStringList namesOf(const std::vector<Record*>& records)
{
    QStringList result;
    for (const Record* record : records)
        if (const QString name = velm::toQt(record->getName()); !name.startsWith(u'*'))
            result.append(name);
    result.sort(Qt::CaseInsensitive);
    return result;
}
} // namespace

EntityFilterProperties::EntityFilterProperties(std::shared_ptr<EntityFilterFactories> factories)
    : m_factories(std::move(factories)), m_drawn(read())
{}

EntityFilterProperties::~EntityFilterProperties() = default;

EntityFilterProperties::Drawn EntityFilterProperties::read() const
{
    OdApDocument* document = m_factories->documents().curDocument();
    const OdDbDatabase* database = document ? document->database() : nullptr;
    if (!database)
        return {};
    const OdUnits::LinearKind kind = database->formatter().units().linearKind;
    return {namesOf(database->layers()), namesOf(database->linetypes()), namesOf(database->blocks()),
            kind == OdUnits::kEngineering || kind == OdUnits::kArchitectural};
}

void EntityFilterProperties::refresh()
{
    const Drawn former = std::exchange(m_drawn, read());
    const auto tell = [this](bool isChanged, int row, const QList<int>& roles) {
        if (isChanged)
            Q_EMIT dataChanged(index(row), index(row), roles);
    };
    tell(former.layers != m_drawn.layers, Layer, {ValuesRole});
    tell(former.linetypes != m_drawn.linetypes, Linetype, {ValuesRole});
    tell(former.blocks != m_drawn.blocks, BlockName, {ValuesRole});
    for (const Record& record : table)
        tell(former.hasInches != m_drawn.hasInches && (record.unit == Unit::Length || record.unit == Unit::Area),
             record.property, {UnitRole, FullPathNameRole});
}

Kind EntityFilterProperties::valueType(Property property)
{
    return table[property].kind;
}

int EntityFilterProperties::getNrProperties() const
{
    return PropertyCount;
}

QStringList EntityFilterProperties::getValues(int index) const
{
    switch (index) {
    case Type:
        return kindNames();
    case Layer:
        return m_drawn.layers;
    case Linetype:
        return m_drawn.linetypes;
    case TextAlignment:
        return alignments();
    case BlockName:
        return m_drawn.blocks;
    default:
        return IEntityFilterPropertiesModel::getValues(index);
    }
}

QString EntityFilterProperties::getName(int index) const
{
    const Record* record = recordAt(index);
    return record ? translated(record->name) : QString();
}

QString EntityFilterProperties::getValueType(int index) const
{
    const Record* record = recordAt(index);
    return record ? velm::filter::getValueTypeName(record->kind) : QString();
}

QString EntityFilterProperties::getUnit(int index) const
{
    const Record* record = recordAt(index);
    switch (record ? record->unit : Unit::None) {
    case Unit::None:
        return {};
    case Unit::Length:
        return m_drawn.hasInches ? translated("in") : QString();
    case Unit::Area:
        return m_drawn.hasInches ? translated("in\u00B2") : QString();
    case Unit::Percent:
        return QStringLiteral("%");
    }
    return {};
}

QStringList EntityFilterProperties::getPath(int index) const
{
    const Record* record = recordAt(index);
    if (!record)
        return {};
    QStringList path{translated(record->group)};
    if (record->subgroup)
        path.append(translated(record->subgroup));
    return path;
}

QString EntityFilterProperties::getFullPathName(int index, bool withUnit) const
{
    const QString unit = withUnit ? getUnit(index) : QString();
    const QString name = (getPath(index) << getName(index)).join(u'/');
    return unit.isEmpty() ? name : QStringLiteral("%1 [%2]").arg(name, unit);
}

OdString EntityFilterProperties::getRegistryId(int index) const
{
    const Record* record = recordAt(index);
    return record ? OdString(record->id) : IEntityFilterPropertiesModel::getRegistryId(index);
}

OdString EntityFilterProperties::getRegistrySubCategory() const
{
    return L"Entities";
}

bool EntityFilterProperties::isHierarchical() const
{
    return true;
}

int EntityFilterProperties::getIndexByGuid(const ut::UUID& guid) const
{
    const auto found = std::ranges::find_if(table, [&](const Record& record) { return ut::UUID(record.id) == guid; });
    return found == std::end(table) ? -1 : found->property;
}

std::vector<ut::UUID> EntityFilterProperties::getInitialPinnedProperties() const
{
    std::vector<ut::UUID> result;
    for (const Property property : {Type, Layer, Color, Length})
        result.emplace_back(table[property].id);
    return result;
}

int EntityFilterProperties::getIndexByGuidAndPath(const ut::UUID& guid, const OdArray<OdString>& /*path*/) const
{
    return getIndexByGuid(guid);
}

bool EntityFilterProperties::hasPipet() const
{
    return true;
}

bool EntityFilterProperties::pipetEnabled() const
{
    return m_selection && m_selection->entities().size() == 1 && !m_selection->current().isNull();
}

QVariantMap EntityFilterProperties::pipet(int index)
{
    const QVariant value = pipetEnabled() ? pickedValue(index) : QVariant();
    return {{"success", value.isValid()}, {"value", value}};
}

QVariant EntityFilterProperties::pickedValue(int index)
{
    const Record* record = recordAt(index);
    const auto* entity = m_selection->current().open<OdDbEntity>();
    if (!record || !entity)
        return {};
    EntityRecords records;
    records.append(*entity);
    switch (record->kind) {
    case Kind::Real:
    case Kind::Integer:
    case Kind::Transparency: {
        const double number = records.numbers(record->property).front();
        if (std::isnan(number))
            return {};
        return record->kind == Kind::Real ? QVariant(number) : QVariant(static_cast<int>(number));
    }
    case Kind::String:
    case Kind::StringMultiple: {
        const std::vector<QString>& texts = records.texts(record->property);
        if (texts.empty())
            return {};
        return record->kind == Kind::String ? QVariant(texts.front()) : QVariant(QStringList{texts.front()});
    }
    default: {
        const std::vector<int>& choices = records.choices(record->property);
        return choices.empty() ? QVariant() : choiceValue(record->kind, choices.front(), entity->color());
    }
    }
}

QVariant EntityFilterProperties::choiceValue(Kind kind, int choice, const OdCmColor& color)
{
    switch (kind) {
    case Kind::EnumMultiple:
        return QVariantList{choice};
    case Kind::Boolean:
        return choice != 0;
    case Kind::LineWeight: {
        const velm::ILineWeightModel* model = getLineWeightModel();
        const std::optional<int> row = model ? model->indexOf(choice) : std::nullopt;
        return row ? QVariant(*row) : QVariant();
    }
    case Kind::Color: {
        const std::optional<int> number = numberOfColor(getColorModel(), color);
        return number ? QVariant(QVariantList{*number}) : QVariant();
    }
    default:
        return choice;
    }
}

oc::PropertyFilterFactoriesManager* EntityFilterProperties::getPropertyFilterFactoriesManager() const
{
    return m_factories.get();
}
} // namespace workbench
