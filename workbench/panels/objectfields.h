#pragma once

#include "od/oddbobject.h"
#include "velm/models/propertieslistmodel.h"

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

/// What can be seen and changed of an entity or a layer; nothing of other objects. The fields are for use at once: they
/// hold the object.
std::vector<ObjectField> objectFields(OdDbObject& object);
/// What the object is, as in "Line" and "Layer".
QString objectTitle(const OdDbObject& object);
} // namespace workbench
