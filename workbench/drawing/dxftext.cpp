#include "drawing/dxftext.h"

#include <array>
#include <cstdint>
#include <cwctype>

namespace workbench {

namespace {

// What the western code page has in 0x80 to 0x9F; the rest is as in Latin-1.
constexpr std::array<wchar_t, 32> cp1252High = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// The code point at `position` of a UTF-8 text, which moves behind it; -1 when it is invalid.
std::int32_t nextCodePoint(std::string_view bytes, std::size_t& position)
{
    const auto byteAt = [&](std::size_t index) { return static_cast<unsigned char>(bytes[index]); };
    const unsigned char first = byteAt(position);
    if (first < 0x80) {
        ++position;
        return first;
    }
    const int length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || position + length > bytes.size())
        return -1;
    std::int32_t code = first & (0xFF >> (length + 1));
    for (int i = 1; i < length; ++i) {
        const unsigned char byte = byteAt(position + i);
        if ((byte & 0xC0) != 0x80)
            return -1;
        code = (code << 6) | (byte & 0x3F);
    }
    const bool overlong = (length == 3 && code < 0x800) || (length == 4 && code < 0x10000);
    if (overlong || code > 0x10FFFF || (code >= 0xD800 && code < 0xE000))
        return -1;
    position += length;
    return code;
}

/// The value of the hexadecimal digits at a place, or -1 unless all of them are digits.
int hexAt(const std::wstring& text, std::size_t position, std::size_t count)
{
    if (position + count > text.size())
        return -1;
    int value = 0;
    for (std::size_t i = position; i < position + count; ++i) {
        if (text[i] > 0x7F || !std::iswxdigit(text[i]))
            return -1;
        value = value * 16 + (text[i] <= L'9' ? text[i] - L'0' : (text[i] & ~0x20) - L'A' + 10);
    }
    return value;
}

} // namespace

bool isValidUtf8(std::string_view bytes)
{
    for (std::size_t position = 0; position < bytes.size();)
        if (nextCodePoint(bytes, position) < 0)
            return false;
    return true;
}

std::wstring decodeDxfText(std::string_view bytes, bool isUtf8)
{
    std::wstring text;
    for (std::size_t position = 0; position < bytes.size();) {
        if (isUtf8) {
            const std::int32_t code = nextCodePoint(bytes, position);
            if (code < 0)
                ++position; // a value that was shortened may end inside a character
            else
                text += static_cast<wchar_t>(code);
        } else {
            const auto byte = static_cast<unsigned char>(bytes[position++]);
            text += byte >= 0x80 && byte < 0xA0 ? cp1252High[byte - 0x80] : static_cast<wchar_t>(byte);
        }
    }
    for (std::size_t at = text.find(L"\\U+"); at != std::wstring::npos; at = text.find(L"\\U+", at + 1)) {
        const int code = hexAt(text, at + 3, 4);
        if (code > 0 && (code < 0xD800 || code >= 0xE000))
            text.replace(at, 7, 1, static_cast<wchar_t>(code));
    }
    return text;
}

std::wstring plainText(const std::wstring& coded)
{
    std::wstring text;
    for (std::size_t i = 0; i < coded.size(); ++i) {
        if (coded.compare(i, 2, L"%%") != 0 || i + 2 >= coded.size()) {
            text += coded[i];
            continue;
        }
        const wchar_t code = static_cast<wchar_t>(std::towlower(coded[i + 2]));
        i += 2;
        if (code == L'd')
            text += L'°';
        else if (code == L'c')
            text += L'Ø';
        else if (code == L'p')
            text += L'±';
        else if (code == L'%')
            text += L'%';
        else if (code != L'u' && code != L'o' && code != L'k')
            text += L"%%" + coded.substr(i, 1);
    }
    return text;
}

std::wstring plainMText(const std::wstring& coded)
{
    std::wstring text;
    for (std::size_t i = 0; i < coded.size(); ++i) {
        const wchar_t character = coded[i];
        if (character == L'{' || character == L'}')
            continue;
        if (character != L'\\' || i + 1 == coded.size()) {
            text += character;
            continue;
        }
        const wchar_t code = coded[++i];
        const std::wstring_view withArgument = L"ACcFfHpQTWS";
        if (code == L'P' || code == L'X') {
            text += L'\n';
        } else if (code == L'~') {
            text += L' ';
        } else if (code == L'\\' || code == L'{' || code == L'}') {
            text += code;
        } else if (withArgument.find(code) != std::wstring_view::npos) {
            const std::size_t end = coded.find(L';', i);
            if (end == std::wstring::npos) {
                text += coded.substr(i - 1, 2);
                continue;
            }
            if (code == L'S')
                for (const wchar_t part : coded.substr(i + 1, end - i - 1))
                    text += part == L'^' || part == L'#' ? L'/' : part;
            i = end;
        } else if (std::wstring_view(L"LlOoKk").find(code) == std::wstring_view::npos) {
            text += coded.substr(i - 1, 2);
        }
    }
    return plainText(text);
}

} // namespace workbench
