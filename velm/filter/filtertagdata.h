#pragma once

#include <QVariant>

#include <vector>

namespace velm {
/// One condition of a filter: a property, an operator and a value.
struct FilterTagData
{
    int propertyIndex = -1; ///< the row in the filter's property model; -1: none is chosen
    int operation = 0;      ///< a FilterOperatorsModel::Operator
    QVariant value;         ///< in the form that filter::EDefaultValueType tells

    friend bool operator==(const FilterTagData&, const FilterTagData&) = default;
};

/// A whole filter: the tags of one inner vector, a conjunction, hold together; the conjunctions are alternatives.
using FilterData = std::vector<std::vector<FilterTagData>>;
} // namespace velm
