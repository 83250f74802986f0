#include "velm/table/cellvalues.h"

#include "ut/names.h"
#include "velm/bridge/strings.h"

#include <algorithm>
#include <cwchar>
#include <limits>

namespace velm::cellvalues {
int naturalCompare(const wxString& left, const wxString& right)
{
    return ut::strCmpAlphanum(left.wc_str(), right.wc_str(), 0);
}

int leadingInteger(const wxString& text)
{
    // As wcstol reads it, held within an int, so that no text is undefined behaviour.
    const long value = std::wcstol(text.wc_str(), nullptr, 10);
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<long>(value, Limits::min(), Limits::max()));
}

std::optional<double> number(const wxString& text)
{
    double value = 0.0;
    if (!text.ToDouble(&value))
        return std::nullopt;
    return value;
}

double takeFileSize(wxString& text)
{
    const wxString kilobytes = Strings::kb();
    const wxString megabytes = Strings::mb();
    double factor = 1.0;
    const auto cut = [&text](std::size_t count) { text.Truncate(text.length() - std::min(text.length(), count)); };
    if (text.EndsWith(kilobytes)) {
        cut(kilobytes.length() + 1);
        factor = 1024.0;
    } else if (text.Right(kilobytes.length()) == megabytes) { // the length of the other unit: this must stay
        cut(megabytes.length() + 1);
        factor = 1024.0 * 1024.0;
    }
    return number(text).value_or(0.0) * factor;
}

bool isDisabled(const wxString& text)
{
    return text.EndsWith(L"Disabled");
}

int plotStyleNumber(const wxString& text)
{
    return leadingInteger(text.Mid(std::wcslen(Strings::strColor())));
}

PixelSize pixelSize(const wxString& text)
{
    const std::size_t comma = text.find(L',');
    if (comma == wxString::npos)
        return {};
    const auto width = static_cast<unsigned>(leadingInteger(text.Left(comma)));
    const auto height = static_cast<unsigned>(leadingInteger(text.Mid(comma + 1)));
    return {true, static_cast<double>(static_cast<int>(width * height))};
}
} // namespace velm::cellvalues
