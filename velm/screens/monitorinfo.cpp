#include "velm/screens/monitorinfo.h"

#include "velm/screens/devicepixels.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include <wx/display.h>

#include <cmath>

namespace velm {
MonitorInfo::MonitorInfo(const Source& source) : m_source(source)
{}

IMonitorInfo::MonitorGeometry MonitorInfo::getGeometry() const
{
    const QScreen* screen = m_source.screen;
    if (m_source.qtWindow)
        screen = m_source.qtWindow->screen();
    else if (!screen)
        screen = QGuiApplication::screenAt(
            QPoint(devicePixels(std::round(m_source.point.x())), devicePixels(std::round(m_source.point.y()))));
    MonitorGeometry geometry;
    if (screen) {
        geometry.rect = QRectF(screen->geometry());
        geometry.origin = geometry.rect.topLeft();
    }
    return geometry;
}

IMonitorInfo::MonitorGeometry MonitorInfo::getScreenGeometry() const
{
    const wxPoint inside(devicePixels(m_source.point.x() - 1.0), devicePixels(m_source.point.y() - 1.0));
    const int found = wxDisplay::GetFromPoint(inside);
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
