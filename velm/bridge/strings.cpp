#include "velm/bridge/strings.h"

#include <wx/string.h>
#include <wx/translation.h>

namespace velm {
const wxString& hostTranslation(const wxString& word)
{
    if (const wxTranslations* translations = wxTranslations::Get())
        if (const wxString* translated = translations->GetTranslatedString(word))
            return *translated;
    return wxTranslations::GetUntranslatedString(word);
}

const wchar_t* Strings::strNone()
{
    return hostTranslation("None").wc_str();
}

const wchar_t* Strings::strColor()
{
    return hostTranslation("Color").wc_str();
}

const wchar_t* Strings::strMultiple()
{
    return hostTranslation("*Multiple*").wc_str();
}

const wchar_t* Strings::kb()
{
    return hostTranslation("Kb").wc_str();
}

const wchar_t* Strings::mb()
{
    return hostTranslation("Mb").wc_str();
}
} // namespace velm
