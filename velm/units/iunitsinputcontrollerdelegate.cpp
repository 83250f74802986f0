#include "velm/units/iunitsinputcontrollerdelegate.h"

#include "velm/units/ilinearunitsdataprovider.h"

namespace velm {
IUnitsInputControllerDelegate::~IUnitsInputControllerDelegate() = default;
}
