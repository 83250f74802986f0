#pragma once

#include "velm/screens/logicalrect.h"
#include "velm/velm_export.h"

#include <QPointF>

#include <wx/gdicmn.h>

class wxWindow;

/// Coordinates turned between the toolkits and the monitors.
namespace velm {
/// The scale of the monitor at a physical point, which is its dots per inch by 96; 0.0 when they aren't known.
VELM_EXPORT double getMonitorDPI(const QPointF& point);
/// Device-independent pixels turned into those of the monitor at a physical point; -1 stays -1, and 0 stands for an
/// unknown monitor.
VELM_EXPORT int convertToMonitorUnit(const QPointF& point, int value);
/// A logical point of Qt on the physical desktop. The two numbers are ignored.
VELM_EXPORT QPointF getGlobalCoordinates(QPointF point, double, double);
/// Where a window of the host stands on the screen.
VELM_EXPORT LogicalRect getScreenRect(wxWindow* window, const IMonitorInfo::MonitorGeometry& geometry);
/// A point of a window on the screen.
VELM_EXPORT LogicalPoint toScreenCoord(wxWindow* window, const IMonitorInfo::MonitorGeometry& geometry,
                                       const LogicalPoint& point);
VELM_EXPORT wxSize getWindowSize(const wxWindow& window);
VELM_EXPORT wxSize getMinWindowSize(const wxWindow& window);
} // namespace velm
