#include "velm/screens/monitorinfo.h"

#include "velm/bridge/conversions.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include <wx/display.h>

namespace velm {
MonitorInfo::MonitorInfo(const Source& source) : m_source(source)
{}

IMonitorInfo::MonitorGeometry MonitorInfo::getGeometry() const
{
    const QScreen* screen = m_source.screen;
    if (m_source.qtWindow)
        screen = m_source.qtWindow->screen();
    else if (!screen)
        screen = QGuiApplication::screenAt(m_source.point.toPoint());
    MonitorGeometry geometry;
    if (screen) {
        geometry.rect = QRectF(screen->geometry());
        geometry.origin = geometry.rect.topLeft();
    }
    return geometry;
}

IMonitorInfo::MonitorGeometry MonitorInfo::getScreenGeometry() const
{
    const int found = wxDisplay::GetFromPoint(wxFromQt(m_source.point - QPointF(1.0, 1.0)));
    const wxRect area = wxDisplay(found == wxNOT_FOUND ? 0u : static_cast<unsigned>(found)).GetClientArea();
    MonitorGeometry geometry;
    geometry.rect = QRectF(area.x, area.y, area.width, area.height);
    geometry.origin = geometry.rect.topLeft();
    return geometry;
}

double MonitorInfo::getScale() const
{
    return getGeometry().scale;
}

int MonitorInfo::toLogicalUnit(int value) const
{
    return value;
}

int MonitorInfo::fromLogicalUnit(int value) const
{
    return value;
}
} // namespace velm
