#pragma once

#include "host/contextarea.h"
#include "velm/bridge/iguicontroller.h"

#include <wx/weakref.h>

#include <memory>
#include <vector>

namespace workbench {
class PageGroup;

/// The host's GUI service: dialogs with pages, panels of running commands beside the drawing, addresses opened in the
/// browser, linetypes, the lineweight table, and what colours are called and look like. The shared colours are velm's
/// own. Not supported, and answered as by a host without it: what only other hosts' plugins ask for.
class GuiController : public velm::IGuiController
{
public:
    explicit GuiController(PageGroup& pages);
    ~GuiController() override;

    /// Where the panels of running commands stand; without an area they are windows of their own.
    void setContextArea(ContextArea* area) { m_contextArea = area; }

    std::unique_ptr<velm::IHostDialog> createDialog(const QUrl& page, velm::BaseDialogController* controller,
                                                    wxWindow* parent, const velm::DialogOptions& options,
                                                    void* context) override;
    bool hostQuery1() override { return false; }
    void hostAction1() override {}
    void hostAction2() override {}
    void hostOpenUrl(QUrl url) override;
    void addContextDialog(velm::IHostDialog* dialog) override;
    void removeContextDialog(velm::IHostDialog* dialog) override;
    std::shared_ptr<void> hostCreateShared1(const QUrl&, std::unique_ptr<QObject>) override;
    std::intptr_t hostQuery2() override { return 0; }
    std::shared_ptr<void> hostCreateShared2() override { return {}; }
    void hostAction3() override {}
    bool hostQuery3() override { return false; }
    bool hostQuery4() override { return false; }
    bool shouldInitColor(const OdCmColor& color, int flags) override;
    OdArray<int> initColorIndices(int flags) override;
    std::optional<int> tryAddColor(const OdCmColor& color, int flags) override;
    OdCmColor& getArrayColor(int index, int flags) override;
    velm::ColorDescription describeColor(const OdCmColor& color, wxColour byLayerColor, bool layerOverride,
                                         int flags) override;
    int colorComboFlagsToDialog(int comboFlags, bool varies) override;
    OdString linetypeLocalName(const OdString& storedName) const override;
    /// With the first option "ByLayer" and "ByBlock" are left out; with the second, linetypes that nothing uses, apart
    /// from `id`.
    bool loadLineTypes(OdDbDatabase* database, bool noSecondOption, OdDbObjectId& id, bool noFirstOption,
                       velm::LoadedLineTypes& lineTypes) override;
    /// False for an id that is no linetype and for a size that no picture has. The second id isn't used.
    bool drawLineTypeBitmap(int width, int height, wxBitmap& bitmap, OdDbObjectId lineType, OdDbObjectId second,
                            const wxColour& background) const override;
    int lineWeightCount() const override;
    int lineWeightAt(int index) const override;
    OdString lineWeightName(int lineWeight) const override;
    std::intptr_t hostValue() override { return 0; }
    void hostAction4() override {}
    void hostAction5() override {}
    void hostAction6() override {}
    void hostTakeShared(std::shared_ptr<void>) override {}
    void hostAction7() override {}
    void hostTakeString1(wxString) override {}
    void hostTakeStrings(wxString, wxString) override {}
    void hostTakeString2(wxString) override {}
    std::intptr_t hostQuery7() override { return 0; }
    void hostAction8() override {}
    void hostTakeOwned(std::unique_ptr<velm::HostRecord>) override {}
    bool hostQuery8() override { return false; }

private:
    PageGroup& m_pages;
    std::unique_ptr<velm::IGuiController> m_colors;   // keeps the shared colours
    std::vector<velm::IHostDialog*> m_contextDialogs; // not owned
    wxWeakRef<ContextArea> m_contextArea;             // not owned
};
} // namespace workbench
