#pragma once

#include "velm/velm_export.h"

class wxString;

namespace velm {
/// A word in the language of the wx catalogue, or the word itself; valid as long as the catalogue.
const wxString& hostTranslation(const wxString& word);

/// Words that the library's models share with the host's dialogs, translated through the wx catalogue. The pointers are
/// valid as long as the catalogue.
class VELM_EXPORT Strings
{
public:
    static const wchar_t* strNone();
    static const wchar_t* strColor();
    static const wchar_t* strMultiple();
    static const wchar_t* kb();
    static const wchar_t* mb();
};
} // namespace velm
