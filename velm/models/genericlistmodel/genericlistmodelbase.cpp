#include "velm/models/genericlistmodel/genericlistmodelbase.h"

namespace velm {
GenericListModelBase::~GenericListModelBase() = default;

bool GenericListModelBase::isMove(int first, int last, int dest, int size)
{
    const bool fits = first >= 0 && first <= last && last < size && dest >= 0 && dest <= size;
    const bool staysPut = dest >= first && dest <= last + 1;
    return fits && !staysPut;
}
} // namespace velm
