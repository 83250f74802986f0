#include "od/odcmcolor.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace {
constexpr int firstHueIndex = 10;
constexpr int firstGreyIndex = 250;
constexpr int whiteIndex = 7;

constexpr unsigned long pack(unsigned long red, unsigned long green, unsigned long blue)
{
    return red | (green << 8) | (blue << 16);
}

// 24 hues, each in five values, each in full and in half saturation.
unsigned long hueColor(int index)
{
    constexpr int valuePercent[] = {100, 65, 50, 30, 15};
    const int hue = (index - firstHueIndex) / 10;
    const int shade = (index - firstHueIndex) % 10;
    const bool halfSaturated = shade % 2 != 0;
    const auto channel = [&](int strongestHue) {
        const int away = std::abs(hue - strongestHue);
        const int quarters = std::clamp(8 - std::min(away, 24 - away), 0, 4);
        const int eighths = halfSaturated ? 4 + quarters : 2 * quarters;
        return static_cast<unsigned long>(255 * valuePercent[shade / 2] * eighths / 800);
    };
    return pack(channel(0), channel(8), channel(16));
}

unsigned long greyColor(int index)
{
    const auto value = static_cast<unsigned long>(255 * (20 + 16 * (index - firstGreyIndex)) / 100);
    return pack(value, value, value);
}

using Palette = std::array<unsigned long, 256>;

Palette makePalette(bool darkBackground)
{
    Palette palette = {pack(255, 0, 0),
                       pack(255, 255, 0),
                       pack(0, 255, 0),
                       pack(0, 255, 255),
                       pack(0, 0, 255),
                       pack(255, 0, 255),
                       darkBackground ? pack(255, 255, 255) : 0,
                       pack(128, 128, 128),
                       pack(192, 192, 192)};
    for (int index = firstHueIndex; index < firstGreyIndex; ++index)
        palette[static_cast<std::size_t>(index - 1)] = hueColor(index);
    for (int index = firstGreyIndex; index <= 255; ++index)
        palette[static_cast<std::size_t>(index - 1)] = greyColor(index);
    return palette;
}

std::uint8_t paletteChannel(std::uint16_t index, int shift)
{
    return static_cast<std::uint8_t>(odcmIndexPalette(true)[index - 1] >> shift);
}
} // namespace

const unsigned long* odcmIndexPalette(bool darkBackground)
{
    static const Palette dark = makePalette(true);
    static const Palette light = makePalette(false);
    return darkBackground ? dark.data() : light.data();
}

OdCmColor::OdCmColor(ColorMethod method)
{
    setColorMethod(method);
}

OdCmColor OdCmColor::fromRGB(std::uint8_t red, std::uint8_t green, std::uint8_t blue)
{
    OdCmColor color;
    color.setRGB(red, green, blue);
    return color;
}

OdCmColor OdCmColor::fromIndex(std::uint16_t index)
{
    OdCmColor color;
    color.setColorIndex(index);
    return color;
}

void OdCmColor::setColorMethod(ColorMethod method)
{
    m_method = method;
    m_index = whiteIndex;
    m_red = m_green = m_blue = 0;
    switch (method) {
    case kByColor:
    case kByACI:
        break;
    case kByBlock:
        m_index = kACIbyBlock;
        break;
    case kNone:
        m_index = kACInone;
        break;
    case kByLayer:
    default: // a number that is no method
        m_method = kByLayer;
        m_index = kACIbyLayer;
    }
}

std::uint32_t OdCmColor::color() const
{
    if (isNone())
        return kACInone; // the one packed form without a method
    const std::uint32_t method = static_cast<std::uint32_t>(m_method) << 24;
    if (isByColor())
        return method | (std::uint32_t(m_red) << 16) | (std::uint32_t(m_green) << 8) | m_blue;
    return method | m_index;
}

void OdCmColor::setColor(std::uint32_t packed)
{
    setColorMethod(packed == kACInone ? kNone : static_cast<ColorMethod>(packed >> 24));
    if (isByColor())
        setRGB(static_cast<std::uint8_t>(packed >> 16), static_cast<std::uint8_t>(packed >> 8),
               static_cast<std::uint8_t>(packed));
    else if (isByACI())
        setColorIndex(static_cast<std::uint16_t>(packed));
}

std::uint16_t OdCmColor::colorIndex() const
{
    return m_index;
}

void OdCmColor::setColorIndex(std::uint16_t index)
{
    if (index == kACIbyBlock) {
        setColorMethod(kByBlock);
    } else if (index == kACInone) {
        setColorMethod(kNone);
    } else if (index >= kACIbyLayer) {
        setColorMethod(kByLayer);
    } else {
        setColorMethod(kByACI);
        m_index = index;
    }
}

std::uint8_t OdCmColor::red() const
{
    return isByACI() ? paletteChannel(m_index, 0) : m_red;
}

std::uint8_t OdCmColor::green() const
{
    return isByACI() ? paletteChannel(m_index, 8) : m_green;
}

std::uint8_t OdCmColor::blue() const
{
    return isByACI() ? paletteChannel(m_index, 16) : m_blue;
}

void OdCmColor::setRGB(std::uint8_t red, std::uint8_t green, std::uint8_t blue)
{
    setColorMethod(kByColor);
    m_red = red;
    m_green = green;
    m_blue = blue;
}
