#include "panels/propertytexts.h"

#include "od/oddbrecords.h"

#include <QCoreApplication>

namespace workbench {
namespace {
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Properties)
};
} // namespace

QString colorText(const OdCmColor& color)
{
    if (color.isByLayer())
        return Texts::tr("By layer");
    if (color.isByBlock())
        return Texts::tr("By block");
    if (color.isByColor())
        return QStringLiteral("%1, %2, %3").arg(color.red()).arg(color.green()).arg(color.blue());
    switch (color.colorIndex()) {
    case 1:
        return Texts::tr("Red");
    case 2:
        return Texts::tr("Yellow");
    case 3:
        return Texts::tr("Green");
    case 4:
        return Texts::tr("Cyan");
    case 5:
        return Texts::tr("Blue");
    case 6:
        return Texts::tr("Magenta");
    case 7:
        return Texts::tr("White");
    default:
        return Texts::tr("Colour %1").arg(color.colorIndex());
    }
}

QString lineWeightText(int lineWeight)
{
    switch (lineWeight) {
    case OdDb::kLnWtByLayer:
        return Texts::tr("By layer");
    case OdDb::kLnWtByBlock:
        return Texts::tr("By block");
    case OdDb::kLnWtByLwDefault:
        return Texts::tr("Default");
    default:
        return Texts::tr("%1 mm").arg(lineWeight / 100.0, 0, 'f', 2);
    }
}
} // namespace workbench
