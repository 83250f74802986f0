#include "velm/bridge/externalfunctions.h"
#include "velm/bridge/iguicontroller.h"
#include "velm/dialogs/ihostdialog.h"
#include "velm/drawingprops/colorcollection.h"

#include <QObject>

namespace velm {
namespace {
/// Does nothing, but has colours, so that the colour combos of a program without a host show the standard ones.
class EmptyGuiController : public IGuiController
{
public:
    std::unique_ptr<IHostDialog> createDialog(const QUrl&, BaseDialogController*, wxWindow*, const DialogOptions&,
                                              void*) override
    {
        return nullptr;
    }
    bool hostQuery1() override { return false; }
    void hostAction1() override {}
    void hostAction2() override {}
    void hostOpenUrl(QUrl) override {}
    void addContextDialog(IHostDialog*) override {}
    void removeContextDialog(IHostDialog*) override {}
    std::shared_ptr<void> hostCreateShared1(const QUrl&, std::unique_ptr<QObject>) override { return nullptr; }
    std::intptr_t hostQuery2() override { return 0; }
    std::shared_ptr<void> hostCreateShared2() override { return nullptr; }
    void hostAction3() override {}
    bool hostQuery3() override { return false; }
    bool hostQuery4() override { return false; }
    bool shouldInitColor(const OdCmColor& color, int flags) override { return m_colors.shouldInitColor(color, flags); }
    OdArray<int> initColorIndices(int flags) override { return m_colors.initColorIndices(flags); }
    std::optional<int> tryAddColor(const OdCmColor& color, int flags) override
    {
        return m_colors.tryAddColor(color, flags);
    }
    OdCmColor& getArrayColor(int index, int flags) override { return m_colors.getArrayColor(index, flags); }
    ColorDescription describeColor(const OdCmColor&, wxColour, bool, int) override { return {}; }
    int colorComboFlagsToDialog(int comboFlags, bool varies) override
    {
        return m_colors.colorComboFlagsToDialog(comboFlags, varies);
    }
    OdString linetypeLocalName(const OdString&) const override { return {}; }
    bool loadLineTypes(OdDbDatabase*, bool, OdDbObjectId&, bool, LoadedLineTypes&) override { return false; }
    bool drawLineTypeBitmap(int, int, wxBitmap&, OdDbObjectId, OdDbObjectId, const wxColour&) const override
    {
        return false;
    }
    int lineWeightCount() const override { return 0; }
    int lineWeightAt(int) const override { return 0; }
    OdString lineWeightName(int) const override { return {}; }
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
    void hostTakeOwned(std::unique_ptr<HostRecord>) override {}
    bool hostQuery8() override { return false; }

private:
    ColorCollection m_colors;
};
} // namespace

std::unique_ptr<IGuiController> createEmptyGuiController()
{
    return std::make_unique<EmptyGuiController>();
}
} // namespace velm
