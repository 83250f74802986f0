#include "ut/leaktracking.h"

#include <atomic>

namespace ut {
static std::atomic<int> scopes = 0;

IgnoreMemoryLeakTracking::IgnoreMemoryLeakTracking()
{
    ++scopes;
}

IgnoreMemoryLeakTracking::~IgnoreMemoryLeakTracking()
{
    --scopes;
}

bool IgnoreMemoryLeakTracking::isActive()
{
    return scopes > 0;
}
} // namespace ut
