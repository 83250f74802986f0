#include "velm/filter/defaulttagformatter.h"

#include "velm/filter/abstractfilterpropertiesmodel.h"
#include "velm/filter/filtertagdata.h"

namespace velm {
namespace {
QString unitBehind(const FilterTagData& tag, const AbstractFilterPropertiesModel& properties)
{
    const QString unit = properties.getUnit(tag.propertyIndex);
    return unit.isEmpty() ? QString() : u' ' + unit;
}
} // namespace

QString DefaultTagFormatter::operatorText(const FilterTagData& tag)
{
    return FilterOperatorsModel::getOperatorData(static_cast<FilterOperatorsModel::Operator>(tag.operation)).string;
}

QString DefaultTagFormatter::getPropertyName(const FilterTagData& tag,
                                             const AbstractFilterPropertiesModel& properties) const
{
    return tag.propertyIndex < 0 ? QString() : properties.getName(tag.propertyIndex);
}

QString DefaultTagFormatter::formatPropertyLabelTooltip(const FilterTagData& tag,
                                                        const AbstractFilterPropertiesModel& properties) const
{
    return tag.propertyIndex < 0 ? QString() : properties.getFullPathName(tag.propertyIndex, false);
}

QString DefaultTagFormatter::formatTag(const FilterTagData& tag, const AbstractFilterPropertiesModel& properties,
                                       const FilterOperatorsModel& /*operators*/) const
{
    if (tag.propertyIndex < 0)
        return {};
    return properties.getName(tag.propertyIndex) + u' ' + operatorText(tag) + u' ' +
           properties.valueToString(tag.propertyIndex, tag.value, false, false) + unitBehind(tag, properties);
}

QString DefaultTagFormatter::formatTagToolTip(const FilterTagData& tag, const AbstractFilterPropertiesModel& properties,
                                              const FilterOperatorsModel& /*operators*/) const
{
    if (tag.propertyIndex < 0)
        return {};
    const QString value = properties.valueToString(tag.propertyIndex, tag.value, true, false);
    const QString lineBreak = value.contains(u'\n') ? QStringLiteral("\n") : QString();
    return properties.getFullPathName(tag.propertyIndex, false) + u' ' + operatorText(tag) + u' ' + lineBreak + value +
           unitBehind(tag, properties);
}
} // namespace velm
