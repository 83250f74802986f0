#pragma once

#include "host/dst.h"
#include "od/odarray.h"
#include "od/odcmcolor.h"
#include "od/oddbevalvariant.h"
#include "velm/dialogs/messagebuttons.h"
#include "velm/velm_export.h"

#include <wx/colour.h>
#include <wx/string.h>

#include <functional>
#include <optional>
#include <utility>

class OdDbDatabase;
class wxWindow;

namespace velm {
/// What the host's new-sheet dialog gives back. The sheets are not owned.
struct VELM_EXPORT DlgNewSheetResult
{
    enum class EAction : std::int32_t
    {
        None,
        Create,
        Open,
    };

    std::vector<dst::OdSmSheet*> sheets; // not owned
    dst::OdSmSheet* sheet = nullptr;     // not owned
    EAction action = EAction::None;
};

/// The library's window on the host's dialogs. The order of the operations is part of the interface. The host's further
/// dialogs, which the library doesn't call, follow after these.
class VELM_EXPORT IDialogFactory
{
public:
    using MessageBoxFaker = std::function<int(const wxString&, const wxString&, int, wxWindow*)>;

    virtual ~IDialogFactory();
    /// A test double overrides it, to answer message boxes without showing them.
    virtual void setupMessageBoxFaker(MessageBoxFaker faker);
    virtual void unsetMessageBoxFaker();
    /// Shows a message box: the id of the pressed button, and the answer to the extra question when there is one.
    virtual std::pair<int, bool> message(OdString caption, OdString text, OdString extraText, EMessageStyle style,
                                         const std::vector<MessageButtonInfo>& buttons, wxWindow* parent) = 0;
    virtual void hostDialog1() = 0;
    /// Empty when it was cancelled.
    virtual std::optional<OdCmColor> colorDialog(wxWindow* parent, const OdCmColor* initial, unsigned flags) = 0;
    /// Fills `loaded` with the names of the linetypes that were loaded; false when it was cancelled.
    virtual bool loadLineTypesDialog(wxWindow* parent, OdDbDatabase* database, OdArray<OdString>& loaded,
                                     const wxString& file, const OdString& name) = 0;
    /// The value goes in and comes out.
    virtual bool quickCalculator(wxWindow* parent, OdDbEvalVariantPtr& value, bool modal) = 0;

    int showMessage(OdString caption, OdString text, EMessageStyle style, const std::vector<MessageButtonInfo>& buttons,
                    wxWindow* parent) const;
    int showMessage(OdString caption, OdString text, EMessageStyle style, MessageButtonStyle buttons,
                    wxWindow* parent) const;
    std::pair<int, bool> showMessage(OdString caption, OdString text, OdString extraText, EMessageStyle style,
                                     MessageButtonStyle buttons, wxWindow* parent);
    std::pair<int, bool> showMessage(OdString caption, OdString text, OdString extraText, EMessageStyle style,
                                     const std::vector<MessageButtonInfo>& buttons, wxWindow* parent);
    int showInfoMessage(OdString caption, OdString text, wxWindow* parent, MessageButtonStyle buttons) const;
    int showWarningMessage(OdString caption, OdString text, wxWindow* parent, MessageButtonStyle buttons) const;
    int showErrorMessage(OdString caption, OdString text, wxWindow* parent, MessageButtonStyle buttons) const;
    /// Asks for a colour; alpha is not carried. Empty when it was cancelled.
    std::optional<wxColour> dlgColor(wxWindow* parent, const wxColour& initial, unsigned flags);
};
} // namespace velm
