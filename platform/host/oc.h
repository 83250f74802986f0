#pragma once

#include "platform_export.h"

namespace oc {
/// The host's factories of what a filter can test on. The library only hands it on.
class PLATFORM_EXPORT PropertyFilterFactoriesManager
{
public:
    virtual ~PropertyFilterFactoriesManager();
};
} // namespace oc
