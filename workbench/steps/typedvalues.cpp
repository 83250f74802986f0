#include "steps/typedvalues.h"

#include "od/odunitsformatter.h"

#include <cmath>

namespace workbench {
std::optional<double> typedLength(const wxString& text, const OdUnitsFormatter& formatter)
{
    constexpr double largest = 1e9;
    const double value = formatter.unformatLinear(text.wc_str());
    // Not a number compares as false.
    return std::abs(value) <= largest ? std::optional(value) : std::nullopt;
}

std::optional<OdGePoint3d> typedPoint(const wxString& text, const OdUnitsFormatter& formatter,
                                      const std::optional<OdGePoint3d>& base)
{
    wxString rest = wxString(text).Trim(false);
    const bool isRelative = rest.StartsWith("@", &rest);
    const std::optional<double> x = typedLength(rest.BeforeFirst(','), formatter);
    const std::optional<double> y = typedLength(rest.AfterFirst(','), formatter);
    if (!x || !y || (isRelative && !base))
        return {};
    return (isRelative ? *base : OdGePoint3d()) + OdGeVector3d{*x, *y};
}
} // namespace workbench
