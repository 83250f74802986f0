#pragma once

#include "velm/screens/monitorinfo.h"

namespace velm {
/// A monitor as the operating system knows it.
class WindowsMonitorInfo : public MonitorInfo
{
public:
    using MonitorInfo::MonitorInfo;

    MonitorGeometry getGeometry() const override;
    MonitorGeometry getScreenGeometry() const override;
    double getScale() const override;
    int toLogicalUnit(int value) const override;
    int fromLogicalUnit(int value) const override;

private:
    MonitorGeometry hostWindowGeometry() const;
    /// Dots per inch of a scale of 1.0 and of the monitor's.
    int scaledDpi() const;
};
} // namespace velm
