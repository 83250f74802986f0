#pragma once

#include "velm/velm_export.h"

#include <QPointF>
#include <QRectF>

#include <memory>

class QScreen;
class QWindow;
class wxWindow;

namespace velm {
/// Where a monitor stands and how its pixels count. Three spaces are told apart: physical pixels, as the operating
/// system and the host's toolkit count them on the virtual desktop; logical ones, as Qt counts; and physical ones from
/// the monitor's own corner. A physical value is the logical one times the scale.
class VELM_EXPORT IMonitorInfo
{
public:
    struct MonitorGeometry
    {
        QPointF origin; ///< the monitor's top-left corner
        double scale = 1.0;
        QRectF rect; ///< the whole monitor; empty when it isn't known
    };

    virtual ~IMonitorInfo();
    virtual MonitorGeometry getGeometry() const = 0;
    /// The monitor that holds the point; all 0 when there is none, or when the information isn't of a point.
    virtual MonitorGeometry getScreenGeometry() const = 0;
    /// Dots per inch by 96; 1.0 when they aren't known.
    virtual double getScale() const = 0;
    // -1 stays -1.
    virtual int toLogicalUnit(int value) const = 0;
    virtual int fromLogicalUnit(int value) const = 0;
};

/// The monitor on which a window stands. With both windows the host's gives the place and Qt's the scale.
VELM_EXPORT std::unique_ptr<IMonitorInfo> getMonitorInfo(QWindow* qtWindow, const wxWindow* hostWindow);
VELM_EXPORT std::unique_ptr<IMonitorInfo> getMonitorInfo(const QScreen* screen);
/// The monitor at a logical point.
VELM_EXPORT std::unique_ptr<IMonitorInfo> getMonitorInfo(const QPointF& point);
} // namespace velm
