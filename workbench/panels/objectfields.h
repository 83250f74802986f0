#pragma once

#include "od/oddbrecords.h"
#include "velm/models/propertieslistmodel.h"

#include <algorithm>
#include <functional>
#include <vector>

namespace workbench {
/// A property of an object of the drawing as a page shows it.
struct ObjectField
{
    using Type = velm::PropertiesListModel::Type;

    QString label;
    Type type = Type::Text;
    QVariant value; ///< of a combo box the index of its choice
    QList<QString> choices;
    /// Gives the object another value of the same type; empty for a field to read only.
    std::function<void(const QVariant&)> apply;
    QString toolTip;
};

/// The name of a record of the drawing.
QString recordText(OdDbObjectId id);
/// A layer that names none is continuous.
OdDbObjectId layerLinetype(const OdDbLayerTableRecord& layer);

/// A combo box of some values, each shown as `text` gives it; a present value that is none of them comes last.
template <typename Value, typename Text>
ObjectField choiceField(const QString& label, std::vector<Value> values, Text text, const Value& present,
                        std::function<void(const Value&)> apply)
{
    const auto found = std::find(values.begin(), values.end(), present);
    const auto index = static_cast<int>(found - values.begin());
    if (found == values.end())
        values.push_back(present);
    QList<QString> texts;
    for (const Value& value : values)
        texts.append(text(value));
    const auto choose = [values, apply = std::move(apply)](const QVariant& value) {
        const int chosen = value.toInt();
        if (chosen >= 0 && chosen < static_cast<int>(values.size()))
            apply(values[static_cast<std::size_t>(chosen)]);
    };
    return {label, ObjectField::Type::ComboBox, index, texts, choose, {}};
}

template <typename Record>
std::vector<OdDbObjectId> idsOf(const std::vector<Record*>& records)
{
    std::vector<OdDbObjectId> ids(records.size());
    std::ranges::transform(records, ids.begin(), &Record::objectId);
    return ids;
}

/// What can be seen and changed of an entity or a layer; nothing of other objects. The fields are for use at once: they
/// hold the object.
std::vector<ObjectField> objectFields(OdDbObject& object);
// Properties of a layer among the others.
ObjectField colorField(OdDbLayerTableRecord& layer);
ObjectField lineWeightField(OdDbLayerTableRecord& layer);
ObjectField linetypeField(OdDbLayerTableRecord& layer);
/// What the object is, as in "Line" and "Layer".
QString objectTitle(const OdDbObject& object);
} // namespace workbench
