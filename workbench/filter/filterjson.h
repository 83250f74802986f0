#pragma once

#include "velm/filter/filtertagdata.h"

#include <QJsonArray>
#include <QStringList>

namespace velm {
class AbstractFilterPropertiesModel;
}

/// The conjunctions of a filter in JSON, so that they mean the same with another model of properties, in another
/// drawing, in another language and in a later run: properties stand by identity, path and name, operators in words,
/// choices by their number, lineweights in hundredths of a millimetre, colours in packed form, these three with the name
/// they had. So a list of choices grows at its end only.
namespace workbench {
/// A choice that isn't there is left out, or null when it is the only one. A tag of a row that isn't there counts as
/// one without a property.
QJsonArray filterToJson(const velm::FilterData& filter, const velm::AbstractFilterPropertiesModel& properties);

/// Whether filterFromJson() can take it.
bool isFilterJson(const QJsonValue& conjunctions);

/// The filter on rows of `properties`. What isn't there is left out, and each name of it is added to `missing` once: a
/// property by its name, a choice as "Type: Wall". A colour that the colour model hasn't shown yet is added to it.
/// A conjunction of which nothing is left is dropped, since an empty one could be read as true of everything.
velm::FilterData filterFromJson(const QJsonArray& conjunctions, const velm::AbstractFilterPropertiesModel& properties,
                                QStringList& missing);
} // namespace workbench
