#pragma once

#include "velm/screens/imonitorapi.h"

namespace velm {
/// Asks the operating system itself.
class VELM_EXPORT WindowsMonitorAPI : public IMonitorAPI
{
public:
    HMONITOR monitorFromPoint(const QPointF& point, int flags) override;
    bool getMonitorInfo(HMONITOR monitor, MONITORINFO* info) override;
    bool getMonitorRect(const QPointF& point, RECT* rect) override;
    std::optional<int> getDpiForWindow(ISystemWindow* window) override;
    int fromDIP(int value) override;
    ISystemWindow* getSystemWindow() override;
};
} // namespace velm
