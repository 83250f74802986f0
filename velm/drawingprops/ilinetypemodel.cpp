#include "velm/drawingprops/ilinetypemodel.h"

#include "od/oddbrecords.h"
#include "ut/themecolors.h"
#include "velm/bridge/conversions.h"
#include "velm/bridge/iguicontroller.h"
#include "velm/images/imageconversions.h"

#include <wx/gdicmn.h>
#include <wx/image.h>

namespace velm {
ILineTypeModel::ILineTypeModel() = default;

ILineTypeModel::~ILineTypeModel() = default;

QImage ILineTypeModel::createBitmap(int width, int height, OdDbObjectId lineType, const IGuiController& gui)
{
    wxColour background(ut::guiColorRef(ut::EGuiColor::Grey10));
    if (background == *wxBLACK)
        background = wxColour(1, 1, 1); // hosts take black for a colour of their own
    wxBitmap bitmap;
    if (!gui.drawLineTypeBitmap(width, height, bitmap, lineType, OdDbObjectId::kNull, background))
        return {};
    return convertImage(bitmap.ConvertToImage());
}

QString ILineTypeModel::linetypeName(OdDbObjectId lineType, const IGuiController& gui)
{
    const auto* record = lineType.open<OdDbLinetypeTableRecord>();
    return record ? toQt(gui.linetypeLocalName(record->getName())) : QString();
}
} // namespace velm
