#pragma once

#include "od/odapdocmanager.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/bridge/iguicontroller.h"
#include "velm/dialogs/idialogfactory.h"
#include "velm/dialogs/ihostdialog.h"
#include "velm/units/iunitformatter.h"

#include <QStringList>

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace velm {
class BaseDialogController;
}

/// A host that writes down what it is asked for and answers from a script.
namespace velmtest {
/// One thing that the user does in a dialog: something in the page, then a button.
struct DialogStep
{
    std::function<void(velm::BaseDialogController&)> action; ///< may be empty
    int code;                                                ///< the end code of the button
};

/// A dialog that takes the steps one by one, as a host does: each button asks the controller whether the dialog may end
/// with that code, and the first that may, ends it. It writes to the log of the one who made it.
class FakeDialog : public velm::IHostDialog
{
public:
    FakeDialog(velm::BaseDialogController& controller, std::vector<DialogStep> steps, QStringList& log);
    ~FakeDialog() override;

    void show() override;
    int showModal() override;

private:
    velm::BaseDialogController& m_controller;
    std::vector<DialogStep> m_steps;
    QStringList& m_log;
};

/// A GUI controller with colours, which does nothing else; it makes a FakeDialog when it has steps for one.
class FakeGuiController : public velm::IGuiController
{
public:
    QStringList log;
    /// The steps of the dialogs to come; without any, createDialog() gives null.
    std::deque<std::vector<DialogStep>> dialogs;
    // What the models of drawing properties ask for; an empty one does as createEmptyGuiController()'s.
    std::function<velm::ColorDescription(const OdCmColor& color, wxColour byLayerColor, bool layerOverride, int flags)>
        describe;
    std::function<bool(OdDbDatabase* database, bool noSecondOption, OdDbObjectId& id, bool noFirstOption,
                       velm::LoadedLineTypes& loaded)>
        lineTypes;
    std::function<bool(int width, int height, wxBitmap& bitmap, OdDbObjectId lineType, OdDbObjectId second,
                       const wxColour& background)>
        drawLineType;
    /// The table of lineweights with their names.
    std::function<std::vector<std::pair<int, OdString>>()> lineWeights;
    /// A linetype's stored name is its local one unless this says otherwise.
    std::function<OdString(const OdString& storedName)> localName;

    std::unique_ptr<velm::IHostDialog> createDialog(const QUrl& page, velm::BaseDialogController* controller,
                                                    wxWindow* parent, const velm::DialogOptions& options,
                                                    void* context) override;
    void hostOpenUrl(QUrl url) override;
    void addContextDialog(velm::IHostDialog* dialog) override;
    void removeContextDialog(velm::IHostDialog* dialog) override;

    bool shouldInitColor(const OdCmColor& color, int flags) override;
    OdArray<int> initColorIndices(int flags) override;
    std::optional<int> tryAddColor(const OdCmColor& color, int flags) override;
    OdCmColor& getArrayColor(int index, int flags) override;
    velm::ColorDescription describeColor(const OdCmColor& color, wxColour byLayerColor, bool layerOverride,
                                         int flags) override;
    int colorComboFlagsToDialog(int comboFlags, bool varies) override;

    OdString linetypeLocalName(const OdString& storedName) const override;
    bool loadLineTypes(OdDbDatabase* database, bool noSecondOption, OdDbObjectId& id, bool noFirstOption,
                       velm::LoadedLineTypes& loaded) override;
    bool drawLineTypeBitmap(int width, int height, wxBitmap& bitmap, OdDbObjectId lineType, OdDbObjectId second,
                            const wxColour& background) const override;
    int lineWeightCount() const override;
    int lineWeightAt(int index) const override;
    OdString lineWeightName(int lineWeight) const override;

    bool hostQuery1() override { return false; }
    void hostAction1() override {}
    void hostAction2() override {}
    std::shared_ptr<void> hostCreateShared1(const QUrl&, std::unique_ptr<QObject>) override { return nullptr; }
    std::intptr_t hostQuery2() override { return 0; }
    std::shared_ptr<void> hostCreateShared2() override { return nullptr; }
    void hostAction3() override {}
    bool hostQuery3() override { return false; }
    bool hostQuery4() override { return false; }
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
    std::unique_ptr<velm::IGuiController> m_colors = velm::createEmptyGuiController();
};

/// Answers message boxes and colour pickers from queues. A question without an answer is logged as critical, which
/// fails the test, and counts as cancelled.
class FakeDialogFactory : public velm::IDialogFactory
{
public:
    /// Each message as "error | caption | text | extra text | &OK 4, &Cancel 16"; other dialogs by name and arguments.
    QStringList log;
    std::deque<std::pair<int, bool>> answers;
    std::deque<std::optional<OdCmColor>> colors;
    std::function<bool(OdArray<OdString>& loaded)> loadLineTypes;
    std::function<bool(OdDbEvalVariantPtr& value)> calculate;

    std::pair<int, bool> message(OdString caption, OdString text, OdString extraText, velm::EMessageStyle style,
                                 const std::vector<velm::MessageButtonInfo>& buttons, wxWindow* parent) override;
    void hostDialog1() override {}
    std::optional<OdCmColor> colorDialog(wxWindow* parent, const OdCmColor* initial, unsigned flags) override;
    bool loadLineTypesDialog(wxWindow* parent, OdDbDatabase* database, OdArray<OdString>& loaded, const wxString& file,
                             const OdString& name) override;
    bool quickCalculator(wxWindow* parent, OdDbEvalVariantPtr& value, bool modal) override;
};

/// Writes down what a document manager tells, as "becameCurrent a.dxf"; a null document reads as "-".
class RecordingReactor : public OdApDocManagerReactor
{
public:
    QStringList log;

    void documentCreateStarted(OdApDocument* document) override { note("createStarted", document); }
    void documentCreated(OdApDocument* document) override { note("created", document); }
    void documentBecameCurrent(OdApDocument* document) override { note("becameCurrent", document); }
    void documentCreateCanceled(OdApDocument* document) override { note("createCanceled", document); }
    void documentActivated(OdApDocument* document) override { note("activated", document); }
    void documentToBeActivated(OdApDocument* document) override { note("toBeActivated", document); }
    void documentToBeDeactivated(OdApDocument* document) override { note("toBeDeactivated", document); }
    void documentDeactivated(OdApDocument* document) override { note("deactivated", document); }
    void documentTitleUpdated(OdApDocument* document) override { note("titleUpdated", document); }
    void documentToBeDestroyed(OdApDocument* document) override { note("toBeDestroyed", document); }
    void documentDestroyed(const OdString& fileName) override;

private:
    void note(const char* what, const OdApDocument* document);
};

/// A formatter that writes down its arguments; what it answers is set beforehand.
class FakeUnitFormatter : public velm::IUnitFormatter
{
public:
    QStringList log;
    wxString text;
    std::optional<double> parsed; ///< what a parse leaves in its result; nothing: it is left alone
    bool success = true;          ///< what a parse returns

    wxString formatLinear() override;
    wxString formatAngular(const void* reserved, std::uint16_t flags) override;
    bool parseLinear(double* result, const wxString& input) override;
    bool parseAngular(double* result, const wxString& input, const void* reserved, std::uint16_t flags) override;

    /// The callback that gives this formatter and writes down for which value.
    std::function<velm::IUnitFormatter*(double)> getter();
};
} // namespace velmtest
