#pragma once

#include <QJsonValue>
#include <QStringList>
#include <QVariant>

#include <optional>

namespace velm {
class AbstractFilterPropertiesModel;
}

/// The value of one tag in JSON, in the form that its property's kind has there.
namespace workbench {
/// Null for an invalid value and for one of a wrong kind.
QJsonValue valueToJson(const velm::AbstractFilterPropertiesModel& properties, int row, const QVariant& value);

/// The value in the form of the property's kind. Choices that aren't there are left out, and their names are added to
/// `missing`; nothing when no choice is left, or when the value is of another kind, whose text is then added.
std::optional<QVariant> valueFromJson(const velm::AbstractFilterPropertiesModel& properties, int row,
                                      const QJsonValue& json, QStringList& missing);

/// The value of a tag without a property, of which no kind is known.
QVariant freeValue(const QJsonValue& json);
} // namespace workbench
