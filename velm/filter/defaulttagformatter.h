#pragma once

#include "velm/filter/filtertagformatter.h"

namespace velm {
/// Name, operator, value and unit with a blank between them. A tag without a property has no text at all; the operators
/// model that is passed isn't used.
class VELM_EXPORT DefaultTagFormatter : public FilterTagFormatter
{
public:
    QString getPropertyName(const FilterTagData& tag, const AbstractFilterPropertiesModel& properties) const override;
    QString formatPropertyLabelTooltip(const FilterTagData& tag,
                                       const AbstractFilterPropertiesModel& properties) const override;
    QString formatTag(const FilterTagData& tag, const AbstractFilterPropertiesModel& properties,
                      const FilterOperatorsModel& operators) const override;
    /// With the full path name, and several values on lines of their own.
    QString formatTagToolTip(const FilterTagData& tag, const AbstractFilterPropertiesModel& properties,
                             const FilterOperatorsModel& operators) const override;

private:
    /// Empty for an unknown operator.
    static QString operatorText(const FilterTagData& tag);
};
} // namespace velm
