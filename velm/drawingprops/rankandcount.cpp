#include "velm/drawingprops/rankandcount.h"

namespace velm {
std::pair<int, int> getRankAndCount(const std::vector<int>& values, int value)
{
    std::pair<int, int> result;
    for (const int entry : values) {
        if (entry < value)
            ++result.first;
        else if (entry == value)
            ++result.second;
    }
    return result;
}
} // namespace velm
