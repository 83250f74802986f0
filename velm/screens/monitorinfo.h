#pragma once

#include "velm/screens/imonitorinfo.h"

namespace velm {
/// A monitor as the two toolkits know it, without the operating system.
class MonitorInfo : public IMonitorInfo
{
public:
    /// Whose monitor it is: one of these is set, or both windows. None is owned.
    struct Source
    {
        QWindow* qtWindow = nullptr;
        const wxWindow* hostWindow = nullptr;
        const QScreen* screen = nullptr;
        QPointF point{-1.0, -1.0};
    };

    explicit MonitorInfo(const Source& source);

    MonitorGeometry getGeometry() const override;
    MonitorGeometry getScreenGeometry() const override;
    double getScale() const override;
    int toLogicalUnit(int value) const override;
    int fromLogicalUnit(int value) const override;

protected:
    const Source& source() const { return m_source; }

private:
    Source m_source;
};
} // namespace velm
