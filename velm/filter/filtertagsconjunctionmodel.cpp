#include "velm/filter/filtertagsconjunctionmodel.h"

#include "velm/filter/abstractfilterpropertiesmodel.h"
#include "velm/filter/defaulttagformatter.h"

#include <QJSValue>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace velm {
namespace {
int suitableOperation(int operation, FilterOperatorsModel::CategoryType category)
{
    const std::vector<FilterOperatorsModel::Operator> operators =
        FilterOperatorsModel::getOperatorsForCategory(category);
    const bool fits = std::find(operators.begin(), operators.end(), operation) != operators.end();
    return fits ? operation : operators.empty() ? 0 : operators.front();
}

QVariant suitableValue(QVariant value, const QVariant& defaultValue)
{
    if (value.metaType() == defaultValue.metaType())
        return value;
    return value.canConvert(defaultValue.metaType()) && value.convert(defaultValue.metaType()) ? value : defaultValue;
}

/// A page's list comes as a value of the script, which neither compares as a list nor is written as one.
QVariant withoutScript(const QVariant& value)
{
    return value.metaType() == QMetaType::fromType<QJSValue>() ? value.value<QJSValue>().toVariant() : value;
}

FilterOperatorsModel::CategoryType operatorsCategory(const AbstractFilterPropertiesModel& properties, int propertyIndex)
{
    try {
        return properties.getOperatorCategoryType(propertyIndex);
    } catch (const std::out_of_range&) { // not every model answers for a property that it hasn't
        return FilterOperatorsModel::NoCategory;
    }
}
} // namespace

/// Is its own fallback formatter.
struct FilterTagsConjunctionModel::Pimpl : DefaultTagFormatter
{
    Pimpl(const AbstractFilterPropertiesModel& model, const FilterTagFormatter* tagFormatter,
          std::vector<FilterTagData> initialTags)
        : properties(model), formatter(tagFormatter ? tagFormatter : this), tags(std::move(initialTags))
    {}

    const AbstractFilterPropertiesModel& properties;
    const FilterTagFormatter* formatter; // not owned
    FilterOperatorsModel operators;
    std::vector<FilterTagData> tags;
};

FilterTagsConjunctionModel::FilterTagsConjunctionModel(const AbstractFilterPropertiesModel& properties,
                                                       const FilterTagFormatter* formatter,
                                                       std::vector<FilterTagData> tags)
    : m_pimpl(std::make_unique<Pimpl>(properties, formatter, std::move(tags)))
{}

FilterTagsConjunctionModel::~FilterTagsConjunctionModel() = default;

bool FilterTagsConjunctionModel::addTag(int propertyIndex, int operation, QVariant value)
{
    if (!isProperty(propertyIndex))
        return false;
    append({propertyIndex, operation, withoutScript(value)});
    return true;
}

bool FilterTagsConjunctionModel::editTag(int tagIndex, int propertyIndex, int operation, QVariant value)
{
    if (!isProperty(propertyIndex) || !isTag(tagIndex))
        return false;
    const AbstractFilterPropertiesModel& properties = m_pimpl->properties;
    FilterTagData& tag = m_pimpl->tags[static_cast<std::size_t>(tagIndex)];
    FilterTagData edited{propertyIndex, suitableOperation(operation, properties.getOperatorCategoryType(propertyIndex)),
                         tag.value};
    value = withoutScript(value);
    if (value.isValid()) {
        edited.value = suitableValue(std::move(value), properties.getDefaultValue(propertyIndex));
        if (edited == tag)
            return false;
    }
    tag = std::move(edited);
    const QModelIndex changed = index(tagIndex, 0);
    Q_EMIT dataChanged(changed, changed);
    return true;
}

bool FilterTagsConjunctionModel::removeTag(int tagIndex)
{
    if (!isTag(tagIndex))
        return false;
    beginRemoveRows(QModelIndex(), tagIndex, tagIndex);
    m_pimpl->tags.erase(m_pimpl->tags.begin() + tagIndex);
    endRemoveRows();
    return true;
}

bool FilterTagsConjunctionModel::clear()
{
    if (m_pimpl->tags.empty())
        return false;
    beginResetModel();
    m_pimpl->tags.clear();
    endResetModel();
    return true;
}

const QAbstractListModel* FilterTagsConjunctionModel::getPropertiesModel() const
{
    return &m_pimpl->properties;
}

const std::vector<FilterTagData>& FilterTagsConjunctionModel::getTags() const
{
    return m_pimpl->tags;
}

void FilterTagsConjunctionModel::append(const FilterTagData& tag)
{
    const int row = rowCount();
    beginInsertRows(QModelIndex(), row, row);
    m_pimpl->tags.push_back(tag);
    endInsertRows();
}

int FilterTagsConjunctionModel::rowCount(const QModelIndex& /*parent*/) const
{
    return static_cast<int>(m_pimpl->tags.size());
}

QVariant FilterTagsConjunctionModel::data(const QModelIndex& index, int role) const
{
    if (!isTag(index.row()))
        return {};
    const FilterTagData& tag = m_pimpl->tags[static_cast<std::size_t>(index.row())];
    const AbstractFilterPropertiesModel& properties = m_pimpl->properties;
    switch (role) {
    case TagStringRole:
        return m_pimpl->formatter->formatTag(tag, properties, m_pimpl->operators);
    case TagTooltipRole:
        return m_pimpl->formatter->formatTagToolTip(tag, properties, m_pimpl->operators);
    case PropertyLabelTooltipRole:
        return m_pimpl->formatter->formatPropertyLabelTooltip(tag, properties);
    case PropertyNameRole:
        return m_pimpl->formatter->getPropertyName(tag, properties);
    case PropertyIndexRole:
        return tag.propertyIndex;
    case OperationRole:
        return tag.operation;
    case OperatorsCategoryRole:
        return static_cast<int>(operatorsCategory(properties, tag.propertyIndex));
    case ValueRole:
        return tag.value;
    case DataRole: {
        QVariantMap map;
        const QHash<int, QByteArray> names = roleNames();
        for (auto entry = names.begin(); entry != names.end(); ++entry)
            if (entry.key() != DataRole)
                map[entry.value()] = data(index, entry.key());
        return map;
    }
    default:
        return {};
    }
}

QHash<int, QByteArray> FilterTagsConjunctionModel::roleNames() const
{
    return {{TagStringRole, "tagString"},
            {TagTooltipRole, "tagTooltip"},
            {PropertyLabelTooltipRole, "propertyLabelTooltip"},
            {PropertyNameRole, "propertyName"},
            {PropertyIndexRole, "propertyIndex"},
            {OperationRole, "operation"},
            {OperatorsCategoryRole, "operatorsCategory"},
            {ValueRole, "value"},
            {DataRole, "data"}};
}

bool FilterTagsConjunctionModel::isProperty(int propertyIndex) const
{
    return propertyIndex >= 0 && propertyIndex < m_pimpl->properties.getNrProperties();
}

bool FilterTagsConjunctionModel::isTag(int tagIndex) const
{
    return tagIndex >= 0 && tagIndex < rowCount();
}
} // namespace velm
