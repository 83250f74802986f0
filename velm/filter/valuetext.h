#pragma once

#include <QStringList>
#include <QVariant>

namespace velm {
class AbstractFilterPropertiesModel;

/// The words of a tag's value, one for each of its items; none for an unknown kind of property.
QStringList valueTexts(const AbstractFilterPropertiesModel& properties, int propertyIndex, const QVariant& value,
                       bool styledText);
/// "name [unit]", or the name alone.
QString nameWithUnit(const AbstractFilterPropertiesModel& properties, int propertyIndex);
} // namespace velm
