#pragma once

#include "velm/velm_export.h"

#include <wx/string.h>

#include <cstdint>

namespace velm {
/// The host's formatter, bound to the value that it was got for. The order of the operations is part of the interface.
class VELM_EXPORT IUnitFormatter
{
public:
    virtual ~IUnitFormatter();
    virtual wxString formatLinear() = 0;
    /// `flags`: 0, or 0x1000 where the unit is shown beside the value.
    virtual wxString formatAngular(const void* reserved, std::uint16_t flags) = 0;
    /// False when the text is no length.
    virtual bool parseLinear(double* result, const wxString& text) = 0;
    /// Leaves `result` alone when the text is no angle.
    virtual bool parseAngular(double* result, const wxString& text, const void* reserved, std::uint16_t flags) = 0;
};
} // namespace velm
