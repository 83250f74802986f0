#pragma once

#include "velm/filter/filtertagformatter.h"

namespace velmtest {
/// Tells which of its operations was asked, about which property and whether with an own list of operators.
class NamingFormatter : public velm::FilterTagFormatter
{
public:
    QString getPropertyName(const velm::FilterTagData& tag, const velm::AbstractFilterPropertiesModel&) const override
    {
        return QString("name %1").arg(tag.propertyIndex);
    }
    QString formatPropertyLabelTooltip(const velm::FilterTagData& tag,
                                       const velm::AbstractFilterPropertiesModel&) const override
    {
        return QString("label %1").arg(tag.propertyIndex);
    }
    QString formatTag(const velm::FilterTagData& tag, const velm::AbstractFilterPropertiesModel&,
                      const velm::FilterOperatorsModel& operators) const override
    {
        return QString("tag %1 %2").arg(tag.propertyIndex).arg(operators.rowCount());
    }
    QString formatTagToolTip(const velm::FilterTagData& tag, const velm::AbstractFilterPropertiesModel&,
                             const velm::FilterOperatorsModel& operators) const override
    {
        return QString("tip %1 %2").arg(tag.propertyIndex).arg(operators.rowCount());
    }
};
} // namespace velmtest
