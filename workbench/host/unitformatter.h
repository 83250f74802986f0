#pragma once

#include "od/odunitsformatter.h"
#include "velm/units/iunitformatter.h"

namespace workbench {
/// Formats and parses one value as the drawing does.
class UnitFormatter : public velm::IUnitFormatter
{
public:
    /// In `flags` of formatAngular(): the unit is shown beside the value, so the text goes without it.
    static constexpr std::uint16_t withoutUnit = 0x1000;

    UnitFormatter() = default;
    UnitFormatter(const OdUnitsFormatter& formatter, double value) : m_formatter(formatter), m_value(value) {}

    wxString formatLinear() override;
    wxString formatAngular(const void* reserved, std::uint16_t flags) override;
    bool parseLinear(double* result, const wxString& text) override;
    bool parseAngular(double* result, const wxString& text, const void* reserved, std::uint16_t flags) override;

private:
    OdUnitsFormatter m_formatter;
    double m_value = 0.0;
};
} // namespace workbench
