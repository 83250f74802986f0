#include "od/odstring.h"

#include "od/oderror.h"

#include <QString>
#include <QStringEncoder>

#include <algorithm>

namespace {
// Qt's tables instead of towlower(), which depends on the locale: a name must have one lower case all its life.
wchar_t lower(wchar_t character)
{
    return static_cast<wchar_t>(QChar::toLower(static_cast<char32_t>(character)));
}

wchar_t upper(wchar_t character)
{
    return static_cast<wchar_t>(QChar::toUpper(static_cast<char32_t>(character)));
}

bool isBlank(wchar_t character)
{
    return QChar::isSpace(static_cast<char32_t>(character));
}

template <typename Order>
int sign(Order order)
{
    return std::is_lt(order) ? -1 : std::is_gt(order) ? 1 : 0;
}
} // namespace

OdString::OdString(const wchar_t* text) : m_wide(text ? std::wstring(text) : std::wstring())
{}

OdString::OdString(const wchar_t* text, int length)
    : m_wide(text && length > 0 ? std::wstring(text, static_cast<std::size_t>(length)) : std::wstring())
{}

OdString::OdString(const std::wstring& text) : m_wide(text)
{}

OdString::OdString(const char* utf8) : m_wide(std::nullopt), m_narrow(utf8 ? utf8 : "")
{}

void OdString::syncUnicode() const
{
    if (m_wide)
        return;
    m_wide = QString::fromUtf8(m_narrow.data(), static_cast<qsizetype>(m_narrow.size())).toStdWString();
}

const std::wstring& OdString::wide() const
{
    syncUnicode();
    return *m_wide;
}

std::string OdString::utf8() const
{
    // The narrow text is given back as it came, also after syncUnicode().
    if (!m_wide || !m_narrow.empty())
        return m_narrow;
    const QString text = QString::fromStdWString(*m_wide);
    QStringEncoder encoder(QStringEncoder::Utf8, QStringEncoder::Flag::Stateless);
    const QByteArray bytes = encoder.encode(text);
    return bytes.toStdString();
}

bool OdString::isEmpty() const
{
    return m_wide ? m_wide->empty() : m_narrow.empty();
}

void OdString::empty()
{
    editWide().clear();
}

wchar_t OdString::getAt(int index) const
{
    if (index < 0 || index >= getLength())
        throw OdError_InvalidIndex();
    return wide()[static_cast<std::size_t>(index)];
}

int OdString::find(const wchar_t* text, int start) const
{
    const std::size_t position =
        text ? wide().find(text, static_cast<std::size_t>(std::max(start, 0))) : std::wstring::npos;
    return position == std::wstring::npos ? -1 : static_cast<int>(position);
}

OdString OdString::mid(int start, int count) const
{
    start = std::max(start, 0);
    if (start >= getLength())
        return OdString();
    return wide().substr(static_cast<std::size_t>(start),
                         count < 0 ? std::wstring::npos : static_cast<std::size_t>(count));
}

OdString& OdString::trimLeft()
{
    std::wstring& text = editWide();
    text.erase(text.begin(), std::find_if_not(text.begin(), text.end(), isBlank));
    return *this;
}

OdString& OdString::trimRight()
{
    std::wstring& text = editWide();
    text.erase(std::find_if_not(text.rbegin(), text.rend(), isBlank).base(), text.end());
    return *this;
}

OdString& OdString::makeLower()
{
    std::wstring& text = editWide();
    std::transform(text.begin(), text.end(), text.begin(), lower);
    return *this;
}

OdString& OdString::makeUpper()
{
    std::wstring& text = editWide();
    std::transform(text.begin(), text.end(), text.begin(), upper);
    return *this;
}

int OdString::compare(const OdString& other) const
{
    return sign(wide() <=> other.wide());
}

int OdString::iCompare(const OdString& other) const
{
    const std::wstring& left = wide();
    const std::wstring& right = other.wide();
    return sign(std::lexicographical_compare_three_way(left.begin(), left.end(), right.begin(), right.end(),
                                                       [](wchar_t a, wchar_t b) { return lower(a) <=> lower(b); }));
}

OdString& OdString::operator+=(const OdString& other)
{
    const std::wstring& added = other.wide();
    editWide() += added;
    return *this;
}

OdString& OdString::operator+=(wchar_t character)
{
    editWide() += character;
    return *this;
}

OdString operator+(OdString left, const OdString& right)
{
    left += right;
    return left;
}

std::wstring& OdString::editWide()
{
    syncUnicode();
    m_narrow.clear();
    return *m_wide;
}
