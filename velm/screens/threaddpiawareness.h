#pragma once

#include "velm/velm_export.h"

#include <memory>

namespace velm {
/// While it lives, the calling thread sees each monitor in its own pixels. Does nothing on a system without such an
/// awareness.
class VELM_EXPORT IThreadDpiAwarenessOverridePerMonitorV2
{
public:
    virtual ~IThreadDpiAwarenessOverridePerMonitorV2();
};

VELM_EXPORT std::unique_ptr<IThreadDpiAwarenessOverridePerMonitorV2> getPerMonitorV2Setter();
} // namespace velm
