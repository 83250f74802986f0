#include "host/unitformatter.h"

#include <cmath>

namespace workbench {
namespace {
bool store(double* result, double value)
{
    if (!std::isfinite(value))
        return false;
    *result = value;
    return true;
}
} // namespace

wxString UnitFormatter::formatLinear()
{
    return m_formatter.formatLinear(m_value).c_str();
}

wxString UnitFormatter::formatAngular(const void*, std::uint16_t flags)
{
    wxString text = m_formatter.formatAngle(m_value).c_str();
    const OdUnits::AngularKind kind = m_formatter.units().angularKind;
    const bool endsInUnit = kind == OdUnits::kDecimalDegrees || kind == OdUnits::kGrads || kind == OdUnits::kRadians;
    if ((flags & withoutUnit) && endsInUnit && !text.empty() && !wxIsdigit(text.Last()))
        text.RemoveLast();
    return text;
}

bool UnitFormatter::parseLinear(double* result, const wxString& text)
{
    return store(result, m_formatter.unformatLinear(text.wc_str()));
}

bool UnitFormatter::parseAngular(double* result, const wxString& text, const void*, std::uint16_t)
{
    return store(result, m_formatter.unformatAngle(text.wc_str()));
}
} // namespace workbench
