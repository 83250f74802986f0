#pragma once

#include "od/odcmcolor.h"

#include <optional>
#include <vector>

namespace velm {
class IColorModel;
}

namespace workbench {
/// What the numbers in the value of a colour's tag stand for; none without a model.
std::vector<OdCmColor> standardColors(const velm::IColorModel* model);

/// The number of a colour, which is added to the model when it isn't there; nothing for one that the model doesn't
/// take.
std::optional<int> numberOfColor(velm::IColorModel* model, const OdCmColor& color);
} // namespace workbench
