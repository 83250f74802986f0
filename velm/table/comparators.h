#pragma once

#include "velm/velm_export.h"

#include <wx/string.h>

namespace velm {
// The orders of table cells, each a strict less-than on the cells' texts. "Natural" is ut::strCmpAlphanum: runs of
// digits by their value. An empty text is less than nothing and nothing is less than it where a comparison says that it
// needs both texts; such rows count as equal to all others.

/// Natural.
VELM_EXPORT bool stringsLessThan(const wxString& left, const wxString& right);
/// The whole numbers at the texts' beginnings; 0 where there is none. Needs both texts.
VELM_EXPORT bool integersLessThan(const wxString& left, const wxString& right);
/// By value where both texts are numbers, otherwise natural. Needs both texts.
VELM_EXPORT bool doublesLessThan(const wxString& left, const wxString& right);
/// Sizes such as "12 KB" by value; natural where a text is empty or a size is 0 or unreadable. Cuts the units off its
/// arguments when neither is empty.
VELM_EXPORT bool fileSizeLessThan(wxString& left, wxString& right);
/// With colour-dependent plot styles the number after the word for "color", otherwise natural. Needs both texts.
VELM_EXPORT bool plotStylesLessThan(const wxString& left, const wxString& right, bool colorDependent);
/// Texts that end in "Disabled" first, and equal among themselves; the others without regard to case. Needs both texts.
VELM_EXPORT bool toggleDisabledLessThan(const wxString& left, const wxString& right);
/// Sizes such as "640,480" by their area, natural where a text has no comma or an area is negative. Needs both texts.
VELM_EXPORT bool pixelSizeLessThan(const wxString& left, const wxString& right);
/// As the names of dimension styles are shown for the current drawing. Needs both texts.
VELM_EXPORT bool dimStylesLessThan(const wxString& left, const wxString& right);
} // namespace velm
