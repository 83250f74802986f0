#include "steps/linecommand.h"

#include <wx/intl.h>

namespace workbench {
CommandStep LineCommand::step() const
{
    CommandStep step{CommandStep::Kind::Point,
                     m_points.empty() ? _("First point") : _("Next point"),
                     {{"Undo", !m_points.empty()}, {"Close", m_lines.size() > 1}},
                     {}};
    if (!m_points.empty())
        step.base = m_points.back();
    return step;
}

wxString LineCommand::takePoint(const OdGePoint3d& point)
{
    if (!m_points.empty()) {
        if (point == m_points.back())
            return _("The next point can't be where the last one is.");
        addLineTo(point);
    }
    m_points.push_back(point);
    return {};
}

void LineCommand::takeOption(const wxString& keyword)
{
    if (keyword == "Close") {
        // The last point may be the first one already.
        if (m_points.back() != m_points.front())
            addLineTo(m_points.front());
        end();
        return;
    }
    m_points.pop_back();
    if (m_lines.empty())
        return;
    const OdDbObjectId last = m_lines.back();
    m_lines.pop_back();
    erase(last);
}

std::vector<OdGePoint3d> LineCommand::preview(const OdGePoint3d& cursor) const
{
    if (m_points.empty())
        return {};
    return {m_points.back(), cursor};
}

void LineCommand::addLineTo(const OdGePoint3d& point)
{
    auto line = std::make_unique<OdDbLine>();
    line->startPoint = m_points.back();
    line->endPoint = point;
    m_lines.push_back(add(std::move(line)));
}
} // namespace workbench
