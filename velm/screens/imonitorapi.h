#pragma once

#include "desktop/desktop.h"
#include "velm/velm_export.h"

#include <QPointF>

#include <optional>

namespace velm {
class ISystemWindow;

/// What is asked of the operating system about monitors. The order of the operations is part of the interface.
class VELM_EXPORT IMonitorAPI
{
public:
    virtual ~IMonitorAPI();
    /// `flags` 0 stands for the nearest monitor.
    virtual HMONITOR monitorFromPoint(const QPointF& point, int flags) = 0;
    virtual bool getMonitorInfo(HMONITOR monitor, MONITORINFO* info) = 0;
    /// The rectangle of the monitor at a point. True when it begins at 0, or when there is none; then the rectangle
    /// stays as it was.
    virtual bool getMonitorRect(const QPointF& point, RECT* rect) = 0;
    /// Empty on a system that can't tell.
    virtual std::optional<int> getDpiForWindow(ISystemWindow* window) = 0;
    /// Device-independent pixels turned into physical ones of the primary monitor.
    virtual int fromDIP(int value) = 0;
    /// Not owned by the caller.
    virtual ISystemWindow* getSystemWindow() = 0;
};
} // namespace velm
