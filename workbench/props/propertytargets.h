#pragma once

#include "od/oddbdatabase.h"

#include <QString>

#include <optional>
#include <vector>

class OdDbLeader;

namespace workbench {
/// Whose colour, linetype, lineweight and arrowhead are shown and set: the selected entities', or, where none is
/// selected, what new entities of the drawing get. For use at once: it holds the objects.
class PropertyTargets
{
public:
    /// No drawing gives no targets. Ids of other drawings and of what is erased don't count.
    PropertyTargets(OdDbDatabase* database, const std::vector<OdDbObjectId>& selected);

    bool isNone() const { return !m_database; }
    /// None of them when it is about new entities.
    const std::vector<OdDbEntity*>& entities() const { return m_entities; }

    // Empty where the targets differ, or where there are none.
    std::optional<OdCmColor> color() const;
    std::optional<OdDbObjectId> linetype() const;
    std::optional<int> lineWeight() const;
    /// By its internal name. Of entities the leaders alone have one.
    std::optional<QString> arrowhead() const;

    bool hasArrowhead() const { return m_database && (m_entities.empty() || !m_leaders.empty()); }
    /// The layer that "by layer" refers to: the first entity's or the current one.
    OdDbObjectId layer() const;

    // True when there was something to change.
    bool setColor(const OdCmColor& color);
    bool setLinetype(const OdDbObjectId& linetype);
    bool setLineWeight(int lineWeight);
    bool setArrowhead(const QString& internalName);

private:
    OdDbDatabase* m_database; // not owned
    std::vector<OdDbEntity*> m_entities;
    std::vector<OdDbLeader*> m_leaders;
};
} // namespace workbench
