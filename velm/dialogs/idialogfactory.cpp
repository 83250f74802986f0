#include "velm/dialogs/idialogfactory.h"

#include <utility>

namespace velm {
IDialogFactory::~IDialogFactory() = default;

void IDialogFactory::setupMessageBoxFaker(MessageBoxFaker)
{}

void IDialogFactory::unsetMessageBoxFaker()
{}

int IDialogFactory::showMessage(OdString caption, OdString text, EMessageStyle style,
                                const std::vector<MessageButtonInfo>& buttons, wxWindow* parent) const
{
    // Showing a message changes nothing that a holder of a const factory could see.
    auto& self = const_cast<IDialogFactory&>(*this);
    return self.message(std::move(caption), std::move(text), OdString(), style, buttons, parent).first;
}

int IDialogFactory::showMessage(OdString caption, OdString text, EMessageStyle style, MessageButtonStyle buttons,
                                wxWindow* parent) const
{
    return showMessage(std::move(caption), std::move(text), style, buttonsFromButtonStyle(buttons), parent);
}

std::pair<int, bool> IDialogFactory::showMessage(OdString caption, OdString text, OdString extraText,
                                                 EMessageStyle style, MessageButtonStyle buttons, wxWindow* parent)
{
    return showMessage(std::move(caption), std::move(text), std::move(extraText), style,
                       buttonsFromButtonStyle(buttons), parent);
}

std::pair<int, bool> IDialogFactory::showMessage(OdString caption, OdString text, OdString extraText,
                                                 EMessageStyle style, const std::vector<MessageButtonInfo>& buttons,
                                                 wxWindow* parent)
{
    return message(std::move(caption), std::move(text), std::move(extraText), style, buttons, parent);
}

int IDialogFactory::showInfoMessage(OdString caption, OdString text, wxWindow* parent, MessageButtonStyle buttons) const
{
    return showMessage(std::move(caption), std::move(text), EMessageStyle::Information, buttons, parent);
}

int IDialogFactory::showWarningMessage(OdString caption, OdString text, wxWindow* parent,
                                       MessageButtonStyle buttons) const
{
    return showMessage(std::move(caption), std::move(text), EMessageStyle::Warning, buttons, parent);
}

int IDialogFactory::showErrorMessage(OdString caption, OdString text, wxWindow* parent,
                                     MessageButtonStyle buttons) const
{
    return showMessage(std::move(caption), std::move(text), EMessageStyle::Error, buttons, parent);
}

std::optional<wxColour> IDialogFactory::dlgColor(wxWindow* parent, const wxColour& initial, unsigned flags)
{
    OdCmColor color;
    color.setRGB(initial.Red(), initial.Green(), initial.Blue());
    const std::optional<OdCmColor> picked = colorDialog(parent, &color, flags);
    if (!picked)
        return {};
    return wxColour(picked->red(), picked->green(), picked->blue(), 255);
}
} // namespace velm
