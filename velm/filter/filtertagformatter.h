#pragma once

#include "velm/velm_export.h"

#include <QString>

namespace velm {
class AbstractFilterPropertiesModel;
class FilterOperatorsModel;
struct FilterTagData;

/// Turns a tag into what a user reads. The order of the operations is part of the interface.
class VELM_EXPORT FilterTagFormatter
{
public:
    FilterTagFormatter() = default;
    FilterTagFormatter(const FilterTagFormatter&) = default;
    FilterTagFormatter& operator=(const FilterTagFormatter&) = default;
    virtual ~FilterTagFormatter();

    virtual QString getPropertyName(const FilterTagData& tag,
                                    const AbstractFilterPropertiesModel& properties) const = 0;
    virtual QString formatPropertyLabelTooltip(const FilterTagData& tag,
                                               const AbstractFilterPropertiesModel& properties) const = 0;
    /// The text of the tag's chip.
    virtual QString formatTag(const FilterTagData& tag, const AbstractFilterPropertiesModel& properties,
                              const FilterOperatorsModel& operators) const = 0;
    virtual QString formatTagToolTip(const FilterTagData& tag, const AbstractFilterPropertiesModel& properties,
                                     const FilterOperatorsModel& operators) const = 0;
};
} // namespace velm
