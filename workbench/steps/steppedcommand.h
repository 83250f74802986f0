#pragma once

#include "od/oddbdatabase.h"

#include <wx/string.h>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace workbench {
/// What a command wants to be told next.
struct CommandStep
{
    enum class Kind
    {
        Point,
        Length,
    };
    struct Option
    {
        wxString keyword;
        bool enabled;
    };

    Kind kind;
    wxString prompt;
    std::vector<Option> options;     ///< the same ones at every step of a command
    std::optional<OdGePoint3d> base; ///< what a point may be relative to; a length always has it, to be measured from
};

/// A command that asks for one thing after the other, and adds entities to the model space on the way. New entities
/// get the drawing's current properties.
class SteppedCommand
{
public:
    /// The database outlives the command.
    explicit SteppedCommand(OdDbDatabase& database);
    virtual ~SteppedCommand();
    SteppedCommand(const SteppedCommand&) = delete;
    SteppedCommand& operator=(const SteppedCommand&) = delete;

    const OdUnitsFormatter& formatter() const { return m_database.formatter(); }
    bool isOver() const { return m_isOver; }

    virtual wxString name() const = 0;
    virtual CommandStep step() const = 0;
    // Only what the step asks for. Both give why the command can't use it; empty when it has taken it.
    virtual wxString takePoint(const OdGePoint3d& point) = 0;
    virtual wxString takeLength(double length) = 0;
    /// One that the step enables.
    virtual void takeOption(const wxString& keyword) = 0;
    /// What would be drawn next if the step ended at this place: a chain of points, or nothing.
    virtual std::vector<OdGePoint3d> preview(const OdGePoint3d& cursor) const = 0;

    std::function<void()> onDrawingChanged;

protected:
    OdDbObjectId add(std::unique_ptr<OdDbEntity> entity);
    void erase(OdDbObjectId entity);
    void end() { m_isOver = true; }

private:
    void tell();

    OdDbDatabase& m_database;
    bool m_isOver = false;
};
} // namespace workbench
