#pragma once

#include "velm/velm_export.h"

namespace velm {
/// Hands out the sizes in which to look for a bitmap.
class VELM_EXPORT IBitmapSizeSelector
{
public:
    virtual ~IBitmapSizeSelector();
    /// -1 when there is none left.
    virtual int getNextLoadSize() = 0;
};
} // namespace velm
