#pragma once

#include "platform_export.h"

#include <compare>
#include <optional>
#include <string>
#include <string_view>

/// The drawing database's string. It holds a wide form, a narrow (UTF-8) form, or both; a string made from narrow text
/// gets its wide form in syncUnicode(), which every operation that needs wide text calls first.
class PLATFORM_EXPORT OdString
{
public:
    OdString() = default;
    OdString(const wchar_t* text);
    OdString(const wchar_t* text, int length);
    OdString(const std::wstring& text);
    OdString(const char* utf8);

    /// Fills the wide form when only the narrow one exists; invalid UTF-8 becomes U+FFFD.
    void syncUnicode() const;
    /// True when the wide form is current.
    bool hasUnicode() const { return m_wide.has_value(); }

    /// The wide form, zero-terminated; valid until the string changes.
    const wchar_t* c_str() const { return wide().c_str(); }
    const std::wstring& wide() const;
    /// The narrow form, in UTF-8.
    std::string utf8() const;

    int getLength() const { return static_cast<int>(wide().size()); }
    bool isEmpty() const;
    void empty();

    wchar_t getAt(int index) const;
    /// The position of `text`, or -1.
    int find(const wchar_t* text, int start = 0) const;
    OdString mid(int start, int count = -1) const;
    OdString left(int count) const { return mid(0, count); }
    OdString& trimLeft();
    OdString& trimRight();
    OdString& makeLower();
    OdString& makeUpper();
    int compare(const OdString& other) const;
    /// Three-way comparison without case.
    int iCompare(const OdString& other) const;

    OdString& operator+=(const OdString& other);
    OdString& operator+=(wchar_t character);

    friend PLATFORM_EXPORT OdString operator+(OdString left, const OdString& right);
    friend bool operator==(const OdString& left, const OdString& right) { return left.wide() == right.wide(); }
    friend auto operator<=>(const OdString& left, const OdString& right) { return left.wide() <=> right.wide(); }

private:
    std::wstring& editWide();

    mutable std::optional<std::wstring> m_wide = std::wstring();
    std::string m_narrow;
};
