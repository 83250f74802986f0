#pragma once

#include "od/odarray.h"
#include "od/odcmcolor.h"
#include "od/odge.h"
#include "od/odstring.h"
#include "velm/velm_export.h"

#include <QColor>
#include <QGenericMatrix>
#include <QList>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>
#include <QVector3D>

#include <wx/arrstr.h>
#include <wx/colour.h>
#include <wx/gdicmn.h>
#include <wx/string.h>

#include <string>
#include <string_view>
#include <vector>

/// Values of Qt, wxWidgets and the drawing database turned into one another. None of these throws.
namespace velm {
/// Up to the first zero; `text` must not be null.
VELM_EXPORT QString toQt(const wchar_t* text);
/// Embedded zeros are kept.
VELM_EXPORT QString toQt(std::wstring_view text);
/// Embedded zeros are kept.
VELM_EXPORT QString toQt(const std::wstring& text);
/// Up to the first zero.
VELM_EXPORT QString toQt(const OdString& text);
/// Up to the first zero.
VELM_EXPORT QString toQt(const wxString& text);
VELM_EXPORT QString fromUtf8toQt(const std::string& text);
/// Up to the first zero.
VELM_EXPORT OdString odFromQt(const QString& text);
VELM_EXPORT wxString wxFromQt(const QString& text);

VELM_EXPORT OdArray<OdString> odFromQtList(const QList<QString>& list);
VELM_EXPORT QList<QString> toQtStringList(const OdArray<OdString>& list);
VELM_EXPORT QList<QString> toQtStringList(const wxArrayString& list);
VELM_EXPORT std::vector<QString> toQt(const wxArrayString& list);
VELM_EXPORT wxArrayString wxFromQt(const std::vector<QString>& list);

VELM_EXPORT QSize toQt(const wxSize& size);
VELM_EXPORT QPoint toQt(const wxPoint& point);
// From real coordinates to whole ones: truncated toward zero.
VELM_EXPORT wxSize wxFromQt(const QSizeF& size);
VELM_EXPORT wxPoint wxFromQt(const QPointF& point);
VELM_EXPORT wxRect wxFromQt(const QRect& rect);
VELM_EXPORT wxRect wxFromQt(const QRectF& rect);
VELM_EXPORT QVector3D toQt(const OdGeVector3d& vector);
VELM_EXPORT OdGeVector3d odFromQt(const QVector3D& vector);
/// The upper left 3 by 3 block, row for row.
VELM_EXPORT QGenericMatrix<3, 3, float> toQt(const OdGeMatrix3d& matrix);

/// From 0x00RRGGBB, opaque.
VELM_EXPORT QColor toQtColor(int rgb);
/// An RGB colour as it is, a colour by index 1 to 256 from entry index - 1 of `palette`, whose entries are Windows
/// colour values 0x00BBGGRR; opaque. Any other colour, and an index without a palette, gives an invalid QColor.
VELM_EXPORT QColor toQtColor(const OdCmColor& color, const unsigned long* palette);
VELM_EXPORT QColor toQt(const wxColour& color);
/// Red, green and alpha are kept; blue is filled from red, which hosts rely on. Exact for greys only.
VELM_EXPORT wxColour wxFromQt(const QColor& color);
} // namespace velm
