#pragma once

#include "od/oddbentity.h"

#include <QString>

#include <vector>

namespace workbench {
/// Something that can be measured on an entity, written as its drawing writes values.
struct EntityMeasure
{
    QString label;
    QString value;
};

/// What can be measured on it, the most telling thing first.
std::vector<EntityMeasure> entityMeasures(const OdDbEntity& entity);
/// The kind and what tells the entity from others of its kind, on one short line.
QString entityText(const OdDbEntity& entity);
} // namespace workbench
