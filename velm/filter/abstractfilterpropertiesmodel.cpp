#include "velm/filter/abstractfilterpropertiesmodel.h"

#include "velm/bridge/conversions.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/bridge/strings.h"
#include "velm/drawingprops/icolormodel.h"
#include "velm/drawingprops/ilineweightmodel.h"
#include "velm/filter/valuetext.h"

#include <QJSEngine>

#include <algorithm>

namespace velm {
namespace {
constexpr int colorComboFlags = 3; // true colours, by layer and by block
constexpr QSize noSize(-1, -1);
// Known by their names before anybody makes a QVariant of them.
[[maybe_unused]] const int registered[] = {qRegisterMetaType<IColorModel*>(), qRegisterMetaType<ILineWeightModel*>()};

std::optional<filter::EDefaultValueType> typeOf(const AbstractFilterPropertiesModel& properties, int index)
{
    return filter::getDefaultValueType(properties.getValueType(index));
}
} // namespace

struct AbstractFilterPropertiesModel::Pimpl
{
    std::unique_ptr<IColorModel> colorModel;
    std::unique_ptr<ILineWeightModel> lineWeightModel;
};

AbstractFilterPropertiesModel::AbstractFilterPropertiesModel(QObject* parent)
    : QAbstractListModel(parent), m_pimpl(std::make_unique<Pimpl>())
{
    IGuiController* gui = guiController();
    IDialogFactory* dialogs = dlgFactory();
    if (gui == nullptr || dialogs == nullptr)
        return;
    m_pimpl->colorModel = createColorModel(*gui, *dialogs, colorComboFlags, false, noSize, QColor(), QString());
    m_pimpl->lineWeightModel = createLineWeightModel(*gui, LineWeightModelParams(true, true, true), noSize);
    QJSEngine::setObjectOwnership(m_pimpl->colorModel.get(), QJSEngine::CppOwnership);
    QJSEngine::setObjectOwnership(m_pimpl->lineWeightModel.get(), QJSEngine::CppOwnership);
}

AbstractFilterPropertiesModel::~AbstractFilterPropertiesModel() = default;

int AbstractFilterPropertiesModel::rowCount(const QModelIndex& /*parent*/) const
{
    return getNrProperties();
}

QVariant AbstractFilterPropertiesModel::data(const QModelIndex& index, int role) const
{
    const int row = index.row();
    switch (role) {
    case NameRole:
        return getName(row);
    case FullPathNameRole:
        return getFullPathName(row, true);
    case TypeRole:
        return getValueType(row);
    case ValuesRole:
        return getValues(row);
    case ValueModelRole:
        return getModel(row);
    case ComponentUrlRole:
        return QVariant::fromValue(getComponentUrl(row));
    case UnitRole:
        return getUnit(row);
    default:
        return {};
    }
}

QHash<int, QByteArray> AbstractFilterPropertiesModel::roleNames() const
{
    return {{NameRole, "name"},     {FullPathNameRole, "fullPathName"}, {TypeRole, "type"},
            {ValuesRole, "values"}, {ValueModelRole, "valueModel"},     {ComponentUrlRole, "componentUrl"},
            {UnitRole, "unit"}};
}

QStringList AbstractFilterPropertiesModel::getValues(int index) const
{
    if (typeOf(*this, index) == filter::EDefaultValueType::Boolean)
        return {QObject::tr("false"), QObject::tr("true")};
    return {};
}

QVariant AbstractFilterPropertiesModel::getModel(int index) const
{
    const std::optional<filter::EDefaultValueType> type = typeOf(*this, index);
    if (type == filter::EDefaultValueType::Color)
        return QVariant::fromValue(m_pimpl->colorModel.get());
    if (type == filter::EDefaultValueType::LineWeight)
        return QVariant::fromValue(m_pimpl->lineWeightModel.get());
    return {};
}

FilterOperatorsModel::CategoryType AbstractFilterPropertiesModel::getOperatorCategoryType(int index) const
{
    const std::optional<filter::EDefaultValueType> type = typeOf(*this, index);
    return type ? filter::getOperatorCategoryType(*type) : FilterOperatorsModel::NoCategory;
}

FilterOperatorsModel::Operator AbstractFilterPropertiesModel::getDefaultOperation(int index) const
{
    const std::vector<FilterOperatorsModel::Operator> operators =
        FilterOperatorsModel::getOperatorsForCategory(getOperatorCategoryType(index));
    return operators.empty() ? FilterOperatorsModel::Is : operators.front();
}

QVariant AbstractFilterPropertiesModel::getDefaultValue(int index) const
{
    const std::optional<filter::EDefaultValueType> type = typeOf(*this, index);
    if (!type)
        return {};
    switch (*type) {
    case filter::EDefaultValueType::String:
        return QString();
    case filter::EDefaultValueType::StringMultiple:
        return QStringList{getValues(index).value(0)};
    case filter::EDefaultValueType::Real:
        return 0.0;
    case filter::EDefaultValueType::Integer:
    case filter::EDefaultValueType::Enum:
    case filter::EDefaultValueType::LineWeight:
    case filter::EDefaultValueType::Transparency:
        return 0;
    case filter::EDefaultValueType::EnumMultiple:
    case filter::EDefaultValueType::Color:
        return QVariantList{0};
    case filter::EDefaultValueType::Boolean:
        return false;
    }
    return {};
}

QString AbstractFilterPropertiesModel::getUnit(int /*index*/) const
{
    return {};
}

ComponentUrlWithSettings AbstractFilterPropertiesModel::getComponentUrl(int index) const
{
    const QString type = getValueType(index);
    const ComponentUrlWithSettings custom = getCustomComponentUrl(type);
    return custom.isEmpty() ? ComponentUrlWithSettings(filter::defaultComponentUrl(type), QVariant()) : custom;
}

QStringList AbstractFilterPropertiesModel::getPath(int /*index*/) const
{
    return {};
}

QString AbstractFilterPropertiesModel::getFullPathName(int /*index*/, bool /*withUnit*/) const
{
    return {};
}

OdString AbstractFilterPropertiesModel::getRegistryId(int /*index*/) const
{
    return ut::UUID::s_cNil.toString();
}

OdString AbstractFilterPropertiesModel::getRegistrySubCategory() const
{
    return {};
}

bool AbstractFilterPropertiesModel::isHierarchical() const
{
    return false;
}

int AbstractFilterPropertiesModel::getIndexByGuid(const ut::UUID& /*guid*/) const
{
    return -1;
}

std::vector<ut::UUID> AbstractFilterPropertiesModel::getInitialPinnedProperties() const
{
    return {};
}

int AbstractFilterPropertiesModel::getIndexByGuidAndPath(const ut::UUID& /*guid*/,
                                                         const OdArray<OdString>& /*path*/) const
{
    return -1;
}

QString AbstractFilterPropertiesModel::valueToString(int propertyIndex, const QVariant& value, bool multiline,
                                                     bool styledText) const
{
    const QStringList texts = valueTexts(*this, propertyIndex, value, styledText);
    if (multiline)
        return texts.join(styledText ? QStringLiteral("<br>") : QStringLiteral("\n"));
    return texts.size() < 2 ? texts.join(QString()) : toQt(Strings::strMultiple());
}

bool AbstractFilterPropertiesModel::hasPipet() const
{
    return false;
}

bool AbstractFilterPropertiesModel::pipetEnabled() const
{
    return false;
}

QVariantMap AbstractFilterPropertiesModel::pipet(int /*index*/)
{
    return {{"success", false}, {"value", QVariant()}};
}

IColorModel* AbstractFilterPropertiesModel::getColorModel()
{
    return m_pimpl->colorModel.get();
}

const IColorModel* AbstractFilterPropertiesModel::getColorModel() const
{
    return m_pimpl->colorModel.get();
}

ILineWeightModel* AbstractFilterPropertiesModel::getLineWeightModel()
{
    return m_pimpl->lineWeightModel.get();
}

const ILineWeightModel* AbstractFilterPropertiesModel::getLineWeightModel() const
{
    return m_pimpl->lineWeightModel.get();
}

QVariantMap AbstractFilterPropertiesModel::get(int propertyIndex) const
{
    QVariantMap result;
    const QHash<int, QByteArray> names = roleNames();
    for (auto role = names.begin(); role != names.end(); ++role)
        result[role.value()] = data(index(propertyIndex, 0), role.key());
    return result;
}

QString AbstractFilterPropertiesModel::get(int propertyIndex, int valueIndex) const
{
    return getValues(propertyIndex).value(valueIndex);
}

int AbstractFilterPropertiesModel::indexOf(QString name) const
{
    const int count = getNrProperties();
    for (int i = 0; i < count && !name.isEmpty(); ++i)
        if (getName(i) == name)
            return i;
    return 0;
}

int AbstractFilterPropertiesModel::indexOf(int propertyIndex, QString value) const
{
    return value.isEmpty() ? 0 : std::max(0, static_cast<int>(getValues(propertyIndex).indexOf(value)));
}

ComponentUrlWithSettings AbstractFilterPropertiesModel::getCustomComponentUrl(QString /*type*/) const
{
    return {};
}
} // namespace velm
