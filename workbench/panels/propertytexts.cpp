#include "panels/propertytexts.h"

#include "od/oddbrecords.h"
#include "ut/config.h"

#include <QCoreApplication>

namespace workbench {
namespace {
const OdString inchesKey = L"LineWeights/Inches";

// First the default one, by layer and by block. The thickest is last: combos draw the others by their part of it.
constexpr int table[] = {-3, -1, -2, 0,  5,  9,  13,  15,  18,  20,  25,  30,  35, 40,
                         50, 53, 60, 70, 80, 90, 100, 106, 120, 140, 158, 200, 211};
static_assert(table[0] == OdDb::kLnWtByLwDefault && table[1] == OdDb::kLnWtByLayer && table[2] == OdDb::kLnWtByBlock);

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Properties)
};
} // namespace

QString colorText(const OdCmColor& color)
{
    if (color.isByLayer())
        return Texts::tr("ByLayer");
    if (color.isByBlock())
        return Texts::tr("ByBlock");
    if (color.isNone())
        return Texts::tr("None");
    if (color.isByColor())
        return QStringLiteral("%1,%2,%3").arg(color.red()).arg(color.green()).arg(color.blue());
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
        return Texts::tr("Color %1").arg(color.colorIndex());
    }
}

std::span<const int> lineWeights()
{
    return table;
}

QString lineWeightText(int lineWeight)
{
    switch (lineWeight) {
    case OdDb::kLnWtByLayer:
        return Texts::tr("ByLayer");
    case OdDb::kLnWtByBlock:
        return Texts::tr("ByBlock");
    case OdDb::kLnWtByLwDefault:
        return Texts::tr("Default");
    default:
        // Three decimals tell all lineweights apart in inches.
        return areLineWeightsInInches() ? Texts::tr("%1\"").arg(lineWeight / 2540.0, 0, 'f', 3)
                                        : Texts::tr("%1 mm").arg(lineWeight / 100.0, 0, 'f', 2);
    }
}

QString transparencyText(int transparency)
{
    switch (transparency) {
    case OdDb::kTransparencyByLayer:
        return Texts::tr("ByLayer");
    case OdDb::kTransparencyByBlock:
        return Texts::tr("ByBlock");
    default:
        return Texts::tr("%1 %").arg(transparency);
    }
}

bool areLineWeightsInInches()
{
    bool inches = false;
    ut::Config::read(ut::ECfgGroup::Interface, inchesKey, inches);
    return inches;
}

void setLineWeightsInInches(bool inches)
{
    ut::Config::writeBool(ut::ECfgGroup::Interface, inchesKey, inches);
}
} // namespace workbench
