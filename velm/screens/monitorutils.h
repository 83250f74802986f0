#pragma once

#include "desktop/desktop.h"
#include "velm/velm_export.h"

#include <QPointF>

#include <optional>

namespace velm {
class IMonitorAPI;

/// The dots per inch that stand for a scale of 1.0.
constexpr int standardDpi = 96;

/// Dots per inch of monitors and what follows from them. Each question moves a hidden window: ask once a layout, not
/// once a pixel. -1 stands for a size that isn't set and stays -1.
class VELM_EXPORT MonitorUtils
{
public:
    /// Not owned.
    explicit MonitorUtils(IMonitorAPI* api);

    /// Empty when they aren't known.
    std::optional<int> getDpiPerMonitor(HMONITOR monitor);
    /// Device-independent pixels turned into those of the monitor at a point; empty when its dots aren't known.
    std::optional<int> fromDIP_PerMonitor(const QPointF& point, int value);
    /// The same; what gives none, or 0, is turned into those of the primary monitor.
    int fromDIP(const QPointF& point, int value);

private:
    IMonitorAPI* m_api; // not owned
};
} // namespace velm
