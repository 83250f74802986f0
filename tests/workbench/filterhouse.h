#pragma once

#include "drawing/selection.h"
#include "filter/entityfilterproperties.h"
#include "house.h"
#include "panels/propertytexts.h"
#include "support/fakehost.h"
#include "support/scopes.h"
#include "velm/bridge/conversions.h"

/// The house with properties for filters, in a host with the standard colours (by layer, by block, red and so on) and
/// the lineweights by layer, 0.25 mm and 0.50 mm.
class FilterHouse : public House
{
public:
    FilterHouse()
    {
        gui.lineWeights = [] {
            return std::vector<std::pair<int, OdString>>{{-1, L"ByLayer"}, {25, L"0.25 mm"}, {50, L"0.50 mm"}};
        };
        gui.describe = [](const OdCmColor& color, const wxColour&, bool, int) -> velm::ColorDescription {
            return {false, velm::wxFromQt(workbench::colorText(color)), {}};
        };
        velm::ExternalFunctions functions;
        functions.guiController = [this] { return &gui; };
        functions.dlgFactory = [this] { return &dialogs; };
        host.emplace(functions);
        properties = std::make_unique<workbench::EntityFilterProperties>(
            std::make_shared<workbench::EntityFilterFactories>(documents));
    }

    template <typename T>
    T* addTo(OdDbLayerTableRecord* layer)
    {
        auto entity = std::make_unique<T>();
        if (layer)
            entity->setLayer(layer->objectId());
        return database->addEntity(std::move(entity), database->modelSpace());
    }

    velmtest::FakeGuiController gui;
    velmtest::FakeDialogFactory dialogs;
    std::optional<velmtest::ScopedExternalFunctions> host;
    workbench::Selection selection{documents};
    std::unique_ptr<workbench::EntityFilterProperties> properties;
};
