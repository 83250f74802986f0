#include "velm/models/treemodel/treebuilder.h"

#include "od/oderror.h"

namespace velm {
void checkNotNull(const void* pointer)
{
    if (!pointer)
        throw OdError(OdString(L"NULL pointer encountered"));
}
} // namespace velm
