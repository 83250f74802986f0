#include "filter/entitymatcher.h"

#include "filter/entitycondition.h"

#include <algorithm>
#include <array>

namespace workbench {
std::vector<OdDbObjectId> EntityMatcher::matches(const velm::FilterData& filter) const
{
    std::vector<std::vector<EntityCondition>> alternatives;
    for (const std::vector<velm::FilterTagData>& tags : filter) {
        std::vector<EntityCondition> conditions;
        for (const velm::FilterTagData& tag : tags)
            if (tag.propertyIndex != -1)
                conditions.emplace_back(m_records, m_properties, tag);
        if (!conditions.empty())
            alternatives.push_back(std::move(conditions));
    }

    // So many rows at a time that what is held of them stays in the processor's cache.
    constexpr std::size_t block = 4096;
    std::array<std::uint32_t, block> rows;
    std::array<bool, block> isMatch;
    const std::vector<OdDbObjectId>& ids = m_records.ids();
    std::vector<OdDbObjectId> result;
    for (std::size_t first = 0; first < ids.size() && !alternatives.empty(); first += block) {
        const std::size_t size = std::min(block, ids.size() - first);
        isMatch.fill(false);
        for (const std::vector<EntityCondition>& conditions : alternatives) {
            std::size_t count = 0;
            for (std::size_t at = 0; at < size; ++at) {
                rows[count] = static_cast<std::uint32_t>(first + at);
                count += !isMatch[at];
            }
            for (const EntityCondition& condition : conditions)
                count = condition.keep(rows.data(), count);
            for (std::size_t at = 0; at < count; ++at)
                isMatch[rows[at] - first] = true;
        }
        for (std::size_t at = 0; at < size; ++at)
            if (isMatch[at])
                result.push_back(ids[first + at]);
    }
    return result;
}
} // namespace workbench
