#include "filter/filterjson.h"

#include "filter/valuejson.h"
#include "velm/bridge/conversions.h"
#include "velm/filter/abstractfilterpropertiesmodel.h"

#include <QJsonObject>
#include <QMetaEnum>

#include <algorithm>

namespace workbench {
namespace {
using velm::AbstractFilterPropertiesModel;
using velm::FilterData;
using velm::FilterTagData;

const QString propertyKey = QStringLiteral("property");
const QString operatorKey = QStringLiteral("operator");
const QString valueKey = QStringLiteral("value");
const QString idKey = QStringLiteral("id");
const QString pathKey = QStringLiteral("path");
const QString nameKey = QStringLiteral("name");

QMetaEnum operators()
{
    return QMetaEnum::fromType<velm::FilterOperatorsModel::Operator>();
}

QJsonObject tagToJson(const FilterTagData& tag, const AbstractFilterPropertiesModel& properties)
{
    const int row = tag.propertyIndex;
    const bool hasProperty = row >= 0 && row < properties.getNrProperties();
    QJsonObject json{{propertyKey, QJsonValue()}};
    if (hasProperty)
        json[propertyKey] = QJsonObject{{idKey, velm::toQt(properties.getRegistryId(row))},
                                        {pathKey, QJsonArray::fromStringList(properties.getPath(row))},
                                        {nameKey, properties.getName(row)}};
    const char* word = operators().valueToKey(tag.operation);
    // As an edit does with an operator that isn't one.
    if (word == nullptr)
        word =
            operators().valueToKey(hasProperty ? properties.getDefaultOperation(row) : velm::FilterOperatorsModel::Is);
    json[operatorKey] = QLatin1String(word);
    json[valueKey] = hasProperty ? valueToJson(properties, row, tag.value) : QJsonValue::fromVariant(tag.value);
    return json;
}

bool isProperty(const QJsonValue& json)
{
    const QJsonArray path = json[pathKey].toArray();
    return json.isNull() || (json[idKey].isString() && json[nameKey].isString() && json[pathKey].isArray() &&
                             std::all_of(path.begin(), path.end(), [](QJsonValue part) { return part.isString(); }));
}

bool isTag(const QJsonValue& json)
{
    bool isOperator = false;
    operators().keyToValue(json[operatorKey].toString().toLatin1().constData(), &isOperator);
    return json.isObject() && json.toObject().contains(propertyKey) && isProperty(json[propertyKey]) && isOperator &&
           json.toObject().contains(valueKey);
}

bool isConjunction(const QJsonValue& json)
{
    const QJsonArray tags = json.toArray();
    return json.isArray() && std::all_of(tags.begin(), tags.end(), isTag);
}

/// -1 when it isn't there.
int rowOf(const QJsonValue& property, const AbstractFilterPropertiesModel& properties)
{
    const ut::UUID id(velm::odFromQt(property[idKey].toString()));
    if (id.isNil())
        return -1;
    const QStringList path = property[pathKey].toVariant().toStringList();
    const int row = properties.getIndexByGuidAndPath(id, velm::odFromQtList(path));
    return row >= 0 ? row : properties.getIndexByGuid(id);
}

std::optional<FilterTagData> tagFromJson(const QJsonValue& json, const AbstractFilterPropertiesModel& properties,
                                         QStringList& missing)
{
    const QJsonValue property = json[propertyKey];
    const int operation = operators().keyToValue(json[operatorKey].toString().toLatin1().constData());
    if (property.isNull())
        return FilterTagData{-1, operation, freeValue(json[valueKey])};
    const int row = rowOf(property, properties);
    if (row < 0) {
        missing.append(property[nameKey].toString());
        return {};
    }
    QStringList missingChoices;
    const std::optional<QVariant> value = valueFromJson(properties, row, json[valueKey], missingChoices);
    for (const QString& choice : missingChoices)
        missing.append(properties.getName(row) + QStringLiteral(": ") + choice);
    return value ? std::optional(FilterTagData{row, operation, *value}) : std::nullopt;
}
} // namespace

QJsonArray filterToJson(const FilterData& filter, const AbstractFilterPropertiesModel& properties)
{
    QJsonArray conjunctions;
    for (const std::vector<FilterTagData>& conjunction : filter) {
        QJsonArray tags;
        for (const FilterTagData& tag : conjunction)
            tags.append(tagToJson(tag, properties));
        conjunctions.append(tags);
    }
    return conjunctions;
}

bool isFilterJson(const QJsonValue& conjunctions)
{
    const QJsonArray array = conjunctions.toArray();
    return conjunctions.isArray() && std::all_of(array.begin(), array.end(), isConjunction);
}

FilterData filterFromJson(const QJsonArray& conjunctions, const AbstractFilterPropertiesModel& properties,
                          QStringList& missing)
{
    FilterData filter;
    for (const QJsonValue conjunction : conjunctions) {
        const QJsonArray json = conjunction.toArray();
        std::vector<FilterTagData> tags;
        for (const QJsonValue tag : json)
            if (std::optional<FilterTagData> data = tagFromJson(tag, properties, missing))
                tags.push_back(*std::move(data));
        if (json.isEmpty() || !tags.empty())
            filter.push_back(std::move(tags));
    }
    missing.removeDuplicates();
    return filter;
}
} // namespace workbench
