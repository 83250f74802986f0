#pragma once

#include <array>

/// The palettes of the themes: for each of the interface colours, in the order of the host's enumeration, its name and
/// its value as "#rrggbb". The greys run from the background (0) to the text (10) in every theme.
namespace velmqml {
struct ThemeColor
{
    const char* name;
    const char* dark;
    const char* light;
};

extern const std::array<ThemeColor, 30> themeColors;
} // namespace velmqml
