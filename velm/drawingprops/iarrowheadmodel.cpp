#include "velm/drawingprops/iarrowheadmodel.h"

namespace velm {
IArrowHeadModel::IArrowHeadModel() = default;

IArrowHeadModel::~IArrowHeadModel() = default;
} // namespace velm
