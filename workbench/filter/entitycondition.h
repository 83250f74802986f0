#pragma once

#include "filter/entityrecords.h"
#include "velm/filter/filtertagdata.h"

#include <cstdint>
#include <vector>

namespace workbench {
/// One tag of a filter made ready for many entities: texts and choices are decided once for each value of the column,
/// so that an entity costs one look at its code or number.
class EntityCondition
{
public:
    /// The tag has a property. The records outlive the condition.
    EntityCondition(const EntityRecords& records, const EntityFilterProperties& properties,
                    const velm::FilterTagData& tag);

    /// Moves those of the rows for which it holds to the front, in their order, and gives their number.
    std::size_t keep(std::uint32_t* rows, std::size_t count) const;

private:
    using Operator = velm::FilterOperatorsModel::Operator;

    void compareNumbers(Operator operation, const QVariant& value);
    void decideTexts(const std::vector<QString>& folded, Operator operation, const QStringList& wanted);
    void decideChoices(const std::vector<int>& choices, Operator operation, const std::vector<int>& wanted);
    template <typename Value, typename Predicate>
    void decide(const std::vector<Value>& values, bool negative, Predicate predicate);

    enum class Test
    {
        Never,
        Code,
        Inside,
        Outside,
    };

    Test m_test = Test::Never;
    const int* m_codes = nullptr;      // of the records, not owned
    std::vector<char> m_holds;         // by code
    const double* m_numbers = nullptr; // of the records, not owned
    double m_low = 0.0;
    double m_high = 0.0;
};
} // namespace workbench
