#pragma once

#include "filter/entityrecords.h"
#include "velm/filter/filtertagdata.h"

#include <vector>

namespace workbench {
class EntityFilterProperties;

/// Finds the entities of a drawing's model space that a filter describes.
/// Texts are compared without regard to case; "*" and "?" of a wildcard pattern stand for any characters and for one,
/// and the pattern is for the whole text. Of several texts or choices any will do, and a negative operator wants none
/// of them. Numbers are equal when they differ by a billionth. An entity without the property has none of its texts and
/// choices, so that "is not" holds for it; its numbers it can't compare, not even with "≠". By layer and by block an
/// entity is opaque. A tag holds for nothing when its operator doesn't suit the property or its value is of a wrong
/// kind.
class EntityMatcher
{
public:
    /// The properties outlive the matcher.
    explicit EntityMatcher(const EntityFilterProperties& properties) : m_properties(properties) {}

    /// Reads the entities' records; null for none. To call anew after a change of the drawing.
    void setDatabase(const OdDbDatabase* database) { m_records.read(database); }
    const EntityRecords& records() const { return m_records; }

    /// The entities in the order of the drawing. Tags of one conjunction hold together, conjunctions are alternatives.
    /// A tag without a property is passed over, and so is a conjunction without tags; a filter without any finds
    /// nothing.
    std::vector<OdDbObjectId> matches(const velm::FilterData& filter) const;

private:
    const EntityFilterProperties& m_properties;
    EntityRecords m_records;
};
} // namespace workbench
