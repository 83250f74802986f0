#pragma once

#include "velm/dialogs/idialogfactory.h"

namespace workbench {
class PageGroup;

/// The host's dialogs: message boxes, the colour dialog, the dialog that loads linetypes, and the calculator.
class DialogFactory : public velm::IDialogFactory
{
public:
    explicit DialogFactory(PageGroup& pages);

    void setupMessageBoxFaker(MessageBoxFaker faker) override { m_faker = std::move(faker); }
    void unsetMessageBoxFaker() override { m_faker = nullptr; }
    std::pair<int, bool> message(OdString caption, OdString text, OdString extraText, velm::EMessageStyle style,
                                 const std::vector<velm::MessageButtonInfo>& buttons, wxWindow* parent) override;
    void hostDialog1() override {}
    std::optional<OdCmColor> colorDialog(wxWindow* parent, const OdCmColor* initial, unsigned flags) override;
    /// Begins with the file, or with the one that comes with the program, and with the linetype of the name.
    bool loadLineTypesDialog(wxWindow* parent, OdDbDatabase* database, OdArray<OdString>& loaded, const wxString& file,
                             const OdString& name) override;
    /// Cancelled, it leaves the variant as it was.
    bool quickCalculator(wxWindow* parent, OdDbEvalVariantPtr& value, bool) override;

private:
    wxWindow* parentFor(wxWindow* parent) const;

    PageGroup& m_pages;
    MessageBoxFaker m_faker;
};
} // namespace workbench
