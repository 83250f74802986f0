#pragma once

#include "platform_export.h"

namespace ut {
/// While one lives, the host's leak tracker counts no allocation: for objects that are kept to the end of the process.
class PLATFORM_EXPORT IgnoreMemoryLeakTracking
{
public:
    IgnoreMemoryLeakTracking();
    ~IgnoreMemoryLeakTracking();
    IgnoreMemoryLeakTracking(const IgnoreMemoryLeakTracking&) = delete;
    IgnoreMemoryLeakTracking& operator=(const IgnoreMemoryLeakTracking&) = delete;

    /// True while a scope lives.
    static bool isActive();
};
} // namespace ut
