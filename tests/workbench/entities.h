#pragma once

#include "od/oddbdatabase.h"

#include <memory>

// New entities of a drawing, in the model unless they are of a block.

template <typename T>
T* add(OdDbDatabase& database, OdDbBlockTableRecord* block = nullptr)
{
    return database.addEntity(std::make_unique<T>(), block ? block : database.modelSpace());
}

inline OdDbLine* addLine(OdDbDatabase& database, OdGePoint3d from, OdGePoint3d to,
                         OdDbBlockTableRecord* block = nullptr)
{
    auto* line = add<OdDbLine>(database, block);
    line->startPoint = from;
    line->endPoint = to;
    return line;
}
