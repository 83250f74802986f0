#include "velm/screens/logicalpoint.h"

#include "velm/screens/devicepixels.h"

#include <wx/gdicmn.h>

#include <cmath>

namespace velm {
LogicalPoint::LogicalPoint(double x, double y) : m_x(x), m_y(y)
{}

LogicalPoint::LogicalPoint(const QPoint& point) : m_x(point.x()), m_y(point.y())
{}

LogicalPoint::LogicalPoint(const OdGsDCPoint& point, const IMonitorInfo::MonitorGeometry& geometry)
    : m_x(static_cast<double>(point.x) / geometry.scale), m_y(static_cast<double>(point.y) / geometry.scale)
{}

LogicalPoint::LogicalPoint(const wxRealPoint& point, const IMonitorInfo::MonitorGeometry& geometry)
    : m_x(point.x / geometry.scale), m_y(point.y / geometry.scale)
{}

OdGsDCPoint LogicalPoint::toOd(const IMonitorInfo::MonitorGeometry& geometry) const
{
    return {devicePixels(m_x * geometry.scale), devicePixels(m_y * geometry.scale)};
}

wxRealPoint LogicalPoint::toWx(const IMonitorInfo::MonitorGeometry& geometry) const
{
    return {m_x * geometry.scale, m_y * geometry.scale};
}

QPointF LogicalPoint::toQt() const
{
    return {m_x, m_y};
}

bool LogicalPoint::operator==(const LogicalPoint& other) const
{
    constexpr double tolerance = 1e-9;
    return std::abs(m_x - other.m_x) < tolerance && std::abs(m_y - other.m_y) < tolerance;
}
} // namespace velm
