#pragma once

#include "od/odcmcolor.h"

#include <string_view>

class DL_Attributes;

namespace workbench {
// Properties of entities and layers from the numbers that stand for them in a file.

/// What is no index counts as by layer.
OdCmColor colorOf(int index);
/// The colour of an entity or a layer.
OdCmColor colorOf(const DL_Attributes& attributes);
/// What is no lineweight counts as by layer.
int lineWeightOf(std::string_view value);
/// In percent, or by layer or by block.
int transparencyOf(std::string_view value);
} // namespace workbench
