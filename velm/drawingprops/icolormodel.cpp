#include "velm/drawingprops/icolormodel.h"

namespace velm {
IColorModel::IColorModel() = default;

IColorModel::~IColorModel() = default;
} // namespace velm
