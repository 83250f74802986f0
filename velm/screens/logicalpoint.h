#pragma once

#include "od/odgs.h"
#include "velm/screens/imonitorinfo.h"
#include "velm/velm_export.h"

#include <QPoint>
#include <QPointF>

class wxRealPoint;

namespace velm {
/// A point in logical pixels.
class VELM_EXPORT LogicalPoint
{
public:
    LogicalPoint(double x, double y);
    LogicalPoint(const QPoint& point);
    // From physical pixels.
    LogicalPoint(const OdGsDCPoint& point, const IMonitorInfo::MonitorGeometry& geometry);
    LogicalPoint(const wxRealPoint& point, const IMonitorInfo::MonitorGeometry& geometry);

    double x() const { return m_x; }
    double y() const { return m_y; }
    void setX(double x) { m_x = x; }
    void setY(double y) { m_y = y; }

    /// In physical pixels, truncated toward zero.
    OdGsDCPoint toOd(const IMonitorInfo::MonitorGeometry& geometry) const;
    /// In physical pixels.
    wxRealPoint toWx(const IMonitorInfo::MonitorGeometry& geometry) const;
    QPointF toQt() const;

    /// Within 1e-9 in each direction.
    bool operator==(const LogicalPoint& other) const;

private:
    double m_x;
    double m_y;
};
} // namespace velm
