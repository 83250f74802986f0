#include "velm/images/ibitmapsizeselector.h"

namespace velm {
IBitmapSizeSelector::~IBitmapSizeSelector() = default;
}
