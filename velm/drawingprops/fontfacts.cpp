#include "velm/drawingprops/fontfacts.h"

#include "velm/bridge/conversions.h"

#include <QFontDatabase>

namespace velm {
OdArray<OdString> getStyles(const OdString& family)
{
    return odFromQtList(QFontDatabase::styles(toQt(family)));
}

int getWeight(const OdString& family, const OdString& style)
{
    return QFontDatabase::weight(toQt(family), toQt(style));
}

bool isBold(const OdString& family, const OdString& style)
{
    return QFontDatabase::bold(toQt(family), toQt(style));
}

bool isItalic(const OdString& family, const OdString& style)
{
    return QFontDatabase::italic(toQt(family), toQt(style));
}

OdArray<OdString> getLanguages(const OdString& family)
{
    OdArray<OdString> result;
    for (const QFontDatabase::WritingSystem system : QFontDatabase::writingSystems(toQt(family)))
        result.append(odFromQt(QFontDatabase::writingSystemName(system)));
    return result;
}

int getCharset(const OdString&)
{
    return 0;
}

int getPitchAndFamily(const OdString&)
{
    return 0;
}
} // namespace velm
