#pragma once

#include "velm/filter/filteroperatorsmodel.h"

#include <optional>

namespace velm::filter {
/// The kinds of values that a property may have, with what a tag's value holds for each.
enum class EDefaultValueType
{
    String = 0,         ///< QString
    StringMultiple = 1, ///< a list of strings
    Real = 2,           ///< double
    Integer = 3,        ///< int
    Enum = 4,           ///< int, an index into the property's values
    EnumMultiple = 5,   ///< QVariantList of such indexes
    Boolean = 6,        ///< bool
    LineWeight = 7,     ///< int, a row of the lineweight model
    Color = 8,          ///< QVariantList of indexes into the standard colours of the colour model
    Transparency = 9,   ///< int
};

/// The key by which a property names its kind; empty for an unknown one.
VELM_EXPORT QString getValueTypeName(EDefaultValueType type);
/// Keys are told apart by case.
VELM_EXPORT std::optional<EDefaultValueType> getDefaultValueType(const QString& name);
VELM_EXPORT FilterOperatorsModel::CategoryType getOperatorCategoryType(EDefaultValueType type);
} // namespace velm::filter
