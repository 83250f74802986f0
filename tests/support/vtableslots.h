#pragma once

#include <QList>

#include <cstring>
#include <numeric>

#ifdef __GXX_ABI_VERSION
#define VELM_READS_VTABLES

namespace velmtest {
/// The place of a virtual operation in the table that hosts are compiled against.
template <typename Operation>
std::ptrdiff_t slotOf(Operation operation)
{
    std::ptrdiff_t parts[2];
    static_assert(sizeof parts == sizeof operation);
    std::memcpy(parts, &operation, sizeof operation);
    return (parts[0] - 1) / static_cast<std::ptrdiff_t>(sizeof(void*));
}

/// So many places in a row, from the first on.
inline QList<std::ptrdiff_t> slotsFrom(std::ptrdiff_t first, qsizetype count)
{
    QList<std::ptrdiff_t> result(count);
    std::iota(result.begin(), result.end(), first);
    return result;
}
} // namespace velmtest
#endif
