#pragma once

#include "steps/steppedcommand.h"

namespace workbench {
/// Draws a line from point to point.
class LineCommand : public SteppedCommand
{
public:
    using SteppedCommand::SteppedCommand;

    wxString name() const override { return "LINE"; }
    CommandStep step() const override;
    wxString takePoint(const OdGePoint3d& point) override;
    /// Never asked for.
    wxString takeLength(double) override { return {}; }
    void takeOption(const wxString& keyword) override;
    std::vector<OdGePoint3d> preview(const OdGePoint3d& cursor) const override;

private:
    void addLineTo(const OdGePoint3d& point);

    std::vector<OdGePoint3d> m_points;
    std::vector<OdDbObjectId> m_lines; // one less than the points
};
} // namespace workbench
