#pragma once

#include "support/fakehost.h"
#include "support/scopes.h"

namespace velmtest {
/// A host with colours named by their numbers, by layer as "<By> Layer" in the colour #010203, and with the lineweights
/// by default, by layer, by block, 0 and 25, named in millimetres.
struct FilterHost
{
    FakeGuiController gui;
    FakeDialogFactory dialogs;
    ScopedExternalFunctions scope{functions()};

    FilterHost()
    {
        gui.describe = [](const OdCmColor& color, wxColour, bool, int) {
            const wxString name = color.isByLayer() ? wxString("<By> Layer") : wxString() << color.colorIndex();
            return velm::ColorDescription{false, name, wxColour(1, 2, 3)};
        };
        gui.lineWeights = [] {
            return std::vector<std::pair<int, OdString>>{
                {-3, L"Default"}, {-1, L"By layer"}, {-2, L"By block"}, {0, L"0.00 mm"}, {25, L"0.25 mm"}};
        };
    }

private:
    velm::ExternalFunctions functions()
    {
        velm::ExternalFunctions result;
        result.guiController = [this] { return &gui; };
        result.dlgFactory = [this] { return &dialogs; };
        return result;
    }
};
} // namespace velmtest
