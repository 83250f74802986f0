#pragma once

#include <wx/string.h>

#include <optional>

/// What the comparisons read out of a cell's text, one text at a time.
namespace velm::cellvalues {
int naturalCompare(const wxString& left, const wxString& right);

/// The whole number at the beginning, 0 where there is none.
int leadingInteger(const wxString& text);
/// Nothing unless the whole text is a number.
std::optional<double> number(const wxString& text);

/// In bytes, 0 for what can't be read. Cuts a unit off the text.
double takeFileSize(wxString& text);

bool isDisabled(const wxString& text);

/// The number of a colour-dependent plot style, which follows the word for "color".
int plotStyleNumber(const wxString& text);

struct PixelSize
{
    bool hasComma = false;
    double area = 0.0; ///< of an int, which wraps around
};
PixelSize pixelSize(const wxString& text);
} // namespace velm::cellvalues
