#include "filter/standardcolors.h"

#include "velm/drawingprops/colorobject.h"
#include "velm/drawingprops/icolormodel.h"

#include <algorithm>

namespace workbench {
std::vector<OdCmColor> standardColors(const velm::IColorModel* model)
{
    std::vector<OdCmColor> result;
    for (int row = 0; model && row < model->rowCount(); ++row)
        if (const velm::ColorObject* color = model->getColorObject(row);
            color && color->getTypeAsEnum() == velm::ColorObject::Type::Standard)
            result.push_back(model->color(row));
    return result;
}

std::optional<int> numberOfColor(velm::IColorModel* model, const OdCmColor& color)
{
    if (model)
        model->getOrAddColor(color);
    const std::vector<OdCmColor> colors = standardColors(model);
    const auto found = std::ranges::find(colors, color);
    return found == colors.end() ? std::nullopt : std::optional(static_cast<int>(found - colors.begin()));
}
} // namespace workbench
