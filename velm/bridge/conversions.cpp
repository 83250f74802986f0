#include "velm/bridge/conversions.h"

#include "desktop/desktop.h"

namespace velm {
namespace {
int truncated(double coordinate)
{
    return static_cast<int>(coordinate);
}
} // namespace

QString toQt(const wchar_t* text)
{
    return QString::fromWCharArray(text, -1);
}

QString toQt(std::wstring_view text)
{
    return QString::fromWCharArray(text.data(), static_cast<qsizetype>(text.size()));
}

QString toQt(const std::wstring& text)
{
    return QString::fromWCharArray(text.data(), static_cast<qsizetype>(text.size()));
}

QString toQt(const OdString& text)
{
    text.syncUnicode();
    return QString::fromWCharArray(text.c_str(), -1);
}

QString toQt(const wxString& text)
{
    return QString::fromWCharArray(text.wc_str(), -1);
}

QString fromUtf8toQt(const std::string& text)
{
    return QString::fromStdString(text);
}

OdString odFromQt(const QString& text)
{
    return OdString(text.toStdWString().c_str());
}

wxString wxFromQt(const QString& text)
{
    return wxString(text.toStdWString());
}

OdArray<OdString> odFromQtList(const QList<QString>& list)
{
    OdArray<OdString> result;
    result.reserve(static_cast<OdArray<OdString>::size_type>(list.size()));
    for (const QString& entry : list)
        result.append(odFromQt(entry));
    return result;
}

QList<QString> toQtStringList(const OdArray<OdString>& list)
{
    QList<QString> result;
    result.reserve(list.size());
    for (const OdString& entry : list)
        result.append(toQt(entry));
    return result;
}

QList<QString> toQtStringList(const wxArrayString& list)
{
    QList<QString> result;
    result.reserve(static_cast<qsizetype>(list.size()));
    for (const wxString& entry : list)
        result.append(toQt(entry));
    return result;
}

std::vector<QString> toQt(const wxArrayString& list)
{
    std::vector<QString> result;
    result.reserve(list.size());
    for (const wxString& entry : list)
        result.push_back(toQt(entry));
    return result;
}

wxArrayString wxFromQt(const std::vector<QString>& list)
{
    wxArrayString result;
    result.reserve(list.size());
    for (const QString& entry : list)
        result.push_back(wxFromQt(entry));
    return result;
}

QSize toQt(const wxSize& size)
{
    return {size.x, size.y};
}

QPoint toQt(const wxPoint& point)
{
    return {point.x, point.y};
}

wxSize wxFromQt(const QSizeF& size)
{
    return {truncated(size.width()), truncated(size.height())};
}

wxPoint wxFromQt(const QPointF& point)
{
    return {truncated(point.x()), truncated(point.y())};
}

wxRect wxFromQt(const QRect& rect)
{
    return {rect.x(), rect.y(), rect.right() - rect.left() + 1, rect.bottom() - rect.top() + 1};
}

wxRect wxFromQt(const QRectF& rect)
{
    return {truncated(rect.x()), truncated(rect.y()), truncated(rect.width()), truncated(rect.height())};
}

QVector3D toQt(const OdGeVector3d& vector)
{
    return {static_cast<float>(vector.x), static_cast<float>(vector.y), static_cast<float>(vector.z)};
}

OdGeVector3d odFromQt(const QVector3D& vector)
{
    return {vector.x(), vector.y(), vector.z()};
}

QGenericMatrix<3, 3, float> toQt(const OdGeMatrix3d& matrix)
{
    QGenericMatrix<3, 3, float> result;
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 3; ++column)
            result(row, column) = static_cast<float>(matrix[row][column]);
    return result;
}

QColor toQtColor(int rgb)
{
    return {(rgb >> 16) & 0xFF, (rgb >> 8) & 0xFF, rgb & 0xFF};
}

QColor toQtColor(const OdCmColor& color, const unsigned long* palette)
{
    if (color.isByColor())
        return {color.red(), color.green(), color.blue()};
    const int index = color.colorIndex();
    if (!color.isByACI() || palette == nullptr || index < 1 || index > 256)
        return {};
    const auto value = static_cast<COLORREF>(palette[index - 1]);
    return {GetRValue(value), GetGValue(value), GetBValue(value)};
}

QColor toQt(const wxColour& color)
{
    // Channels of an invalid wxColour must not be asked for; they count as zero.
    if (!color.IsOk())
        return {0, 0, 0, 0};
    return {color.Red(), color.Green(), color.Blue(), color.Alpha()};
}

wxColour wxFromQt(const QColor& color)
{
    // Red stands in the blue channel on purpose: hosts rely on it.
    const auto red = static_cast<unsigned char>(color.red());
    return {red, static_cast<unsigned char>(color.green()), red, static_cast<unsigned char>(color.alpha())};
}
} // namespace velm
