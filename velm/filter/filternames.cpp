#include "velm/filter/filternames.h"

#include "ut/names.h"
#include "velm/bridge/conversions.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/bridge/strings.h"
#include "velm/dialogs/idialogfactory.h"

#include <wx/defs.h>

#include <algorithm>

namespace velm {
namespace {
OdString translated(const wxString& text)
{
    return OdString(hostTranslation(text).wc_str());
}

bool isForbidden(wchar_t character)
{
    return ut::getForbiddenCharacters().wide().find(character) != std::wstring::npos;
}
} // namespace

bool checkFilterNameIsValid(const QString& name, bool allowOverwrite, const QStringList& existingNames)
{
    IDialogFactory* dialogs = dlgFactory();
    if (dialogs == nullptr)
        return false;
    if (name.isEmpty()) {
        dialogs->showErrorMessage(translated("Error"), translated("Please enter a valid name."), nullptr,
                                  MessageButtonStyle::OK);
        return false;
    }
    const std::wstring characters = name.toStdWString();
    if (std::any_of(characters.begin(), characters.end(), isForbidden)) {
        const wxString text =
            wxString::Format(hostTranslation("These characters are not allowed in filter names: %ls."),
                             ut::getForbiddenCharacters().wide().c_str());
        dialogs->showErrorMessage(translated("Error"), OdString(text.wc_str()), nullptr, MessageButtonStyle::OK);
        return false;
    }
    if (!existingNames.contains(name, Qt::CaseInsensitive))
        return true;
    if (allowOverwrite) {
        return dialogs->showMessage(translated("Overwrite Filter"),
                                    translated("A filter with the name you specified already exists.\n"
                                               "Are you sure you want to overwrite?"),
                                    EMessageStyle::Information, MessageButtonStyle::YesNo, nullptr) == wxYES;
    }
    dialogs->showMessage(translated("Duplicate Filter"),
                         translated("A filter with the name you specified already exists.\n"
                                    "Please specify a different name."),
                         EMessageStyle::Information, MessageButtonStyle::OK, nullptr);
    return false;
}

OdString getDefaultFilterName()
{
    std::wstring name = translated("Filter").wide();
    std::erase_if(name, isForbidden);
    return name.empty() ? OdString(L"Filter") : OdString(name);
}
} // namespace velm
