#include "velm/bridge/stringholder.h"

#include "velm/bridge/conversions.h"

namespace velm {
struct StringHolder::Pimpl
{
    wxString wx;
    QString qt;
};

StringHolder::StringHolder() : m_pimpl(std::make_unique<Pimpl>())
{}

StringHolder::StringHolder(const wxString& text) : StringHolder()
{
    m_pimpl->wx = text;
}

StringHolder::StringHolder(const wchar_t* text) : StringHolder(wxString(text))
{}

StringHolder::StringHolder(const QString& text) : StringHolder()
{
    m_pimpl->qt = text;
}

StringHolder::StringHolder(const StringHolder& other) : m_pimpl(std::make_unique<Pimpl>(*other.m_pimpl))
{}

StringHolder::StringHolder(StringHolder&& other) noexcept = default;

StringHolder& StringHolder::operator=(const StringHolder& other)
{
    m_pimpl = std::make_unique<Pimpl>(*other.m_pimpl);
    return *this;
}

StringHolder& StringHolder::operator=(StringHolder&& other) noexcept = default;

StringHolder::~StringHolder() = default;

bool StringHolder::hasWxString() const
{
    return !m_pimpl->wx.IsEmpty();
}

bool StringHolder::hasQtString() const
{
    return !m_pimpl->qt.isEmpty();
}

bool StringHolder::isEmpty() const
{
    return !hasWxString() && !hasQtString();
}

wxString& StringHolder::stringWx()
{
    if (!hasWxString())
        m_pimpl->wx = wxFromQt(m_pimpl->qt);
    return m_pimpl->wx;
}

QString& StringHolder::stringQt()
{
    return m_pimpl->qt;
}

bool StringHolder::populateQtStringFromWx()
{
    if (!hasWxString() || hasQtString())
        return false;
    m_pimpl->qt = toQt(m_pimpl->wx);
    return true;
}

int StringHolder::iCompareTo(const wxString& other) const
{
    if (hasWxString())
        return m_pimpl->wx.CompareTo(other.c_str(), wxString::ignoreCase);
    return QString::compare(m_pimpl->qt, toQt(other), Qt::CaseInsensitive);
}
} // namespace velm
