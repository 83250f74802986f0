#pragma once

#include "od/odge.h"

#include <wx/string.h>

#include <optional>

class OdUnitsFormatter;

namespace workbench {
// What a person types at the command line, in the drawing's units. Nothing when the text is no such value, or when it
// is one that no drawing has room for.

std::optional<double> typedLength(const wxString& text, const OdUnitsFormatter& formatter);
/// "x,y", or "@dx,dy" from the base, where there is one.
std::optional<OdGePoint3d> typedPoint(const wxString& text, const OdUnitsFormatter& formatter,
                                      const std::optional<OdGePoint3d>& base);
} // namespace workbench
