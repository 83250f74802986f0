#include "steps/circlecommand.h"

#include <wx/intl.h>

#include <cmath>
#include <numbers>

namespace workbench {
CommandStep CircleCommand::step() const
{
    if (!m_center)
        return {CommandStep::Kind::Point, _("Center point"), {{"Diameter", false}}, {}};
    return {
        CommandStep::Kind::Length, m_isDiameter ? _("Diameter") : _("Radius"), {{"Diameter", !m_isDiameter}}, m_center};
}

wxString CircleCommand::takePoint(const OdGePoint3d& point)
{
    m_center = point;
    return {};
}

wxString CircleCommand::takeLength(double length)
{
    if (length <= 0.0)
        return m_isDiameter ? _("A diameter is above zero.") : _("A radius is above zero.");
    auto circle = std::make_unique<OdDbCircle>();
    circle->center = *m_center;
    circle->radius = radius(length);
    add(std::move(circle));
    end();
    return {};
}

void CircleCommand::takeOption(const wxString&)
{
    m_isDiameter = true;
}

std::vector<OdGePoint3d> CircleCommand::preview(const OdGePoint3d& cursor) const
{
    constexpr int corners = 72;
    std::vector<OdGePoint3d> chain;
    if (!m_center)
        return chain;
    const double r = radius((cursor - *m_center).length());
    for (int corner = 0; corner <= corners; ++corner) {
        const double angle = 2 * std::numbers::pi * corner / corners;
        chain.push_back(*m_center + OdGeVector3d{r * std::cos(angle), r * std::sin(angle)});
    }
    return chain;
}
} // namespace workbench
