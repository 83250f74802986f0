#include "velm/filter/valuetypes.h"

#include <map>

namespace velm::filter {
namespace {
const std::map<EDefaultValueType, QString> typeNames = {
    {EDefaultValueType::String, "string"},   {EDefaultValueType::StringMultiple, "stringMultiple"},
    {EDefaultValueType::Real, "real"},       {EDefaultValueType::Integer, "integer"},
    {EDefaultValueType::Enum, "enum"},       {EDefaultValueType::EnumMultiple, "enumMultiple"},
    {EDefaultValueType::Boolean, "boolean"}, {EDefaultValueType::LineWeight, "lineWeight"},
    {EDefaultValueType::Color, "color"},     {EDefaultValueType::Transparency, "transparency"},
};
} // namespace

QString getValueTypeName(EDefaultValueType type)
{
    const auto entry = typeNames.find(type);
    return entry == typeNames.end() ? QString() : entry->second;
}

std::optional<EDefaultValueType> getDefaultValueType(const QString& name)
{
    for (const auto& [type, typeName] : typeNames)
        if (typeName == name)
            return type;
    return {};
}

FilterOperatorsModel::CategoryType getOperatorCategoryType(EDefaultValueType type)
{
    switch (type) {
    case EDefaultValueType::String:
        return FilterOperatorsModel::String;
    case EDefaultValueType::StringMultiple:
        return FilterOperatorsModel::StringMultiple;
    case EDefaultValueType::Real:
    case EDefaultValueType::Integer:
    case EDefaultValueType::Transparency:
        return FilterOperatorsModel::Number;
    default:
        return FilterOperatorsModel::Enum;
    }
}
} // namespace velm::filter
