#include "velm/drawingprops/ilineweightmodel.h"

namespace velm {
ILineWeightModel::ILineWeightModel() = default;

ILineWeightModel::~ILineWeightModel() = default;
} // namespace velm
