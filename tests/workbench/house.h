#pragma once

#include "od/odapdocmanager.h"
#include "od/oddbdatabase.h"

#include <memory>

/// A document manager with a small drawing open: on the layer "Walls" a line 5 long, on the layer "Doors" a circle of
/// radius 2 and an insert of the block "Door", which is a line 1 long, and on the layer "0" the text "Hall".
class House
{
public:
    House()
    {
        auto created = std::make_unique<OdDbDatabase>();
        database = created.get();
        OdUnits units;
        units.linearPrecision = 2;
        database->formatter().setUnits(units);
        walls = database->addLayer(L"Walls");
        doors = database->addLayer(L"Doors");
        block = database->addBlock(L"Door");
        line(1.0, block, doors);
        wall = line(5.0, database->modelSpace(), walls);
        circle = add(std::make_unique<OdDbCircle>(), database->modelSpace(), doors);
        circle->radius = 2.0;
        insert = add(std::make_unique<OdDbBlockReference>(), database->modelSpace(), doors);
        insert->blockTableRecord = block->objectId();
        text = add(std::make_unique<OdDbText>(), database->modelSpace(), nullptr);
        text->textString = L"Hall";
        documents.open(std::make_unique<OdApDocument>(L"/house.dxf", std::move(created)));
    }

    OdDbLine* line(double length, OdDbBlockTableRecord* owner, OdDbLayerTableRecord* layer)
    {
        auto* result = add(std::make_unique<OdDbLine>(), owner, layer);
        result->endPoint.x = length;
        return result;
    }

    void openAnother()
    {
        OdApDocument* former = documents.curDocument();
        documents.open(std::make_unique<OdApDocument>(L"/other.dxf", std::make_unique<OdDbDatabase>()));
        documents.close(former);
    }
    void close() { documents.close(documents.curDocument()); }

    OdApDocManager documents;
    OdDbDatabase* database; // the house's, as long as it is open
    OdDbLayerTableRecord* walls;
    OdDbLayerTableRecord* doors;
    OdDbBlockTableRecord* block;
    OdDbLine* wall;
    OdDbCircle* circle;
    OdDbBlockReference* insert;
    OdDbText* text;

private:
    template <typename T>
    T* add(std::unique_ptr<T> entity, OdDbBlockTableRecord* owner, OdDbLayerTableRecord* layer)
    {
        if (layer)
            entity->setLayer(layer->objectId());
        return database->addEntity(std::move(entity), owner);
    }
};
