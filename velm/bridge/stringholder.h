#pragma once

#include "velm/velm_export.h"

#include <QString>

#include <wx/string.h>

#include <memory>

namespace velm {
/// One string in the host's form, in Qt's form, or in both; each form is made at most once and only when asked for.
/// A holder that was moved from is empty.
class VELM_EXPORT StringHolder
{
public:
    StringHolder();
    StringHolder(const wxString& text);
    StringHolder(const wchar_t* text);
    StringHolder(const QString& text);
    StringHolder(const StringHolder& other);
    StringHolder(StringHolder&& other) noexcept;
    StringHolder& operator=(const StringHolder& other);
    StringHolder& operator=(StringHolder&& other) noexcept;
    ~StringHolder();

    /// True when the wx form isn't empty.
    bool hasWxString() const;
    /// True when the Qt form isn't empty.
    bool hasQtString() const;
    bool isEmpty() const;

    /// The wx form, made from the Qt form when it is empty.
    wxString& stringWx();
    /// The Qt form as it stands, never converted: see populateQtStringFromWx().
    QString& stringQt();
    /// Makes the Qt form when it is empty and the wx form isn't; true when it did.
    bool populateQtStringFromWx();

    /// Three-way comparison without case, of the wx form or, when that is empty, of the Qt form.
    int iCompareTo(const wxString& other) const;

private:
    struct Pimpl;
    std::unique_ptr<Pimpl> m_pimpl;
};
} // namespace velm
