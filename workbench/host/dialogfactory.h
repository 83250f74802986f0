#pragma once

#include "velm/dialogs/idialogfactory.h"

namespace workbench {
class PageGroup;

/// The host's dialogs: message boxes, the colour dialog and the calculator. The dialog that loads linetypes doesn't
/// exist in this host and answers as if it were cancelled.
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
    bool loadLineTypesDialog(wxWindow*, OdDbDatabase*, OdArray<OdString>&, const wxString&, const OdString&) override
    {
        return false;
    }
    /// Cancelled, it leaves the variant as it was.
    bool quickCalculator(wxWindow* parent, OdDbEvalVariantPtr& value, bool) override;

private:
    wxWindow* parentFor(wxWindow* parent) const;

    PageGroup& m_pages;
    MessageBoxFaker m_faker;
};
} // namespace workbench
