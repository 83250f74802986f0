#include "host/dialogfactory.h"

#include "host/colordialogcontroller.h"
#include "host/messagedialog.h"
#include "host/pagedialog.h"
#include "host/pagegroup.h"
#include "linetypes/linetypefile.h"
#include "linetypes/loadlinetypescontroller.h"
#include "units/calculatorcontroller.h"
#include "velm/bridge/conversions.h"
#include "velm/bridge/externalfunctions.h"

#include <wx/filedlg.h>

#include <limits>

namespace workbench {
DialogFactory::DialogFactory(PageGroup& pages) : m_pages(pages)
{}

wxWindow* DialogFactory::parentFor(wxWindow* parent) const
{
    return m_pages.modals().parentFor(parent);
}

std::pair<int, bool> DialogFactory::message(OdString caption, OdString text, OdString extraText,
                                            velm::EMessageStyle style,
                                            const std::vector<velm::MessageButtonInfo>& buttons, wxWindow* parent)
{
    if (m_faker)
        return {m_faker(text.c_str(), caption.c_str(), static_cast<int>(style), parent), false};
    MessageDialog dialog(parentFor(parent), caption.c_str(), text.c_str(), extraText.c_str(), style, buttons);
    const int id = dialog.ShowModal();
    return {id, dialog.isQuestionChecked()};
}

std::optional<OdCmColor> DialogFactory::colorDialog(wxWindow* parent, const OdCmColor* initial, unsigned flags)
{
    ColorDialogController controller(initial, flags);
    HostDialog dialog(m_pages, velm::getUIFullUrl("Workbench/ColorDialog.qml"), &controller, parent, {});
    return dialog.showModal() == wxID_OK ? controller.chosen() : std::nullopt;
}

bool DialogFactory::loadLineTypesDialog(wxWindow* parent, OdDbDatabase* database, OdArray<OdString>& loaded,
                                        const wxString& file, const OdString& name)
{
    if (!database)
        return false;
    LoadLineTypesController controller(*database, [this] {
        wxFileDialog dialog(parentFor(nullptr), _("Open Linetypes"), {}, {},
                            _("Linetypes (*.lin)|*.lin;*.LIN|All files|*"), wxFD_OPEN | wxFD_FILE_MUST_EXIST);
        return dialog.ShowModal() == wxID_OK ? velm::toQt(dialog.GetPath()) : QString();
    });
    controller.open(file.empty() ? standardLineTypes() : velm::toQt(file));
    controller.choose(velm::toQt(name));
    HostDialog dialog(m_pages, velm::getUIFullUrl("Workbench/LoadLineTypesDialog.qml"), &controller, parent,
                      {.resizable = true});
    if (dialog.showModal() != wxID_OK)
        return false;
    loaded = controller.loaded();
    return true;
}

bool DialogFactory::quickCalculator(wxWindow* parent, OdDbEvalVariantPtr& value, bool)
{
    CalculatorController controller(value ? value->getAsDouble() : std::numeric_limits<double>::quiet_NaN());
    HostDialog dialog(m_pages, velm::getUIFullUrl("Workbench/CalculatorDialog.qml"), &controller, parent, {});
    if (dialog.showModal() != wxID_OK)
        return false;
    value = OdDbEvalVariant::init(controller.value());
    return true;
}
} // namespace workbench
