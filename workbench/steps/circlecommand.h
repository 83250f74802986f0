#pragma once

#include "steps/steppedcommand.h"

namespace workbench {
/// Draws a circle about a point, of a radius or a diameter.
class CircleCommand : public SteppedCommand
{
public:
    using SteppedCommand::SteppedCommand;

    wxString name() const override { return "CIRCLE"; }
    CommandStep step() const override;
    wxString takePoint(const OdGePoint3d& point) override;
    wxString takeLength(double length) override;
    void takeOption(const wxString& keyword) override;
    std::vector<OdGePoint3d> preview(const OdGePoint3d& cursor) const override;

private:
    double radius(double length) const { return m_isDiameter ? length / 2 : length; }

    std::optional<OdGePoint3d> m_center;
    bool m_isDiameter = false;
};
} // namespace workbench
