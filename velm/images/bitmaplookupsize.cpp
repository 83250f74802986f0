#include "velm/images/bitmaplookupsize.h"

#include "velm/images/pixelratioholder.h"
#include "velm/screens/devicepixels.h"

#include <QMessageLogger>

#include <algorithm>
#include <cmath>

namespace velm {
namespace {
constexpr int smallestSize = 15;
constexpr int defaultSize = 16;

bool isPowerOfTwo(int size)
{
    return (size & (size - 1)) == 0;
}
} // namespace

const std::array<int, 9> BitmapLookupSize::s_lookup = {16, 20, 24, 28, 32, 40, 48, 56, 64};

BitmapLookupSize::BitmapLookupSize() = default;

BitmapLookupSize::BitmapLookupSize(int size, double scale) : m_baseSize(size), m_scale(scale)
{
    initArray();
}

BitmapLookupSize::BitmapLookupSize(int size, const PixelRatioHolder& pixelRatio)
    : BitmapLookupSize(size, pixelRatio.devicePixelRatio())
{}

BitmapLookupSize::BitmapLookupSize(const BitmapLookupSize&) = default;
BitmapLookupSize& BitmapLookupSize::operator=(const BitmapLookupSize&) = default;
BitmapLookupSize::~BitmapLookupSize() = default;

void BitmapLookupSize::initArray()
{
    if (m_baseSize == -1)
        m_baseSize = defaultSize;
    const int target = getTargetSize();
    const auto distance = [target](int size) { return std::abs(double(target) - size); };
    int count = 0;
    const auto append = [&](int size) {
        if (std::find(m_order, m_order + count, size) == m_order + count)
            m_order[count++] = size;
    };

    // Of two at the same distance the smaller one.
    append(*std::ranges::min_element(s_lookup, {}, distance));
    // Here the larger one, and not the target itself, which has come already.
    int nearestPower = s_lookup.back();
    for (auto size = s_lookup.rbegin(); size != s_lookup.rend(); ++size)
        if (*size != target && isPowerOfTwo(*size) && distance(*size) < distance(nearestPower))
            nearestPower = *size;
    append(nearestPower);
    for (auto size = s_lookup.rbegin(); size != s_lookup.rend(); ++size)
        append(*size);
}

int BitmapLookupSize::getNextLoadSize()
{
    const QMessageLogger logger(nullptr, 0, nullptr);
    if (m_baseSize < smallestSize) {
        logger.debug().noquote().nospace() << "Bitmap lookup size: invalid base size: " << m_baseSize;
        return -1;
    }
    const int position = m_position++;
    if (position < static_cast<int>(s_lookup.size()))
        return m_order[position];
    logger.debug().noquote() << "Bitmap lookup size: no bitmap has been found!";
    return -1;
}

int BitmapLookupSize::getTargetSize() const
{
    return devicePixels(m_baseSize * (m_scale == -1.0 ? 1.0 : m_scale));
}
} // namespace velm
