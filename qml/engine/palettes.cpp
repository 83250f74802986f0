#include "palettes.h"

namespace velmqml
{
const std::array<ThemeColor, 30> themeColors = {{
    {"panelBackground", "#2f3236", "#f3f4f6"},
    {"ribbonBackground", "#383c41", "#e9ebee"},
    {"panelsetIconStripBaseColor", "#26292c", "#dde0e4"},
    {"panelsetIconStripActiveColor", "#43484e", "#ffffff"},
    {"comboBackground", "#3a3e43", "#ffffff"},
    {"inputBg", "#222427", "#ffffff"},
    {"buttonLightBg", "#43484e", "#fbfcfd"},
    {"menuItemHoverBg", "#3d4c60", "#dce9f8"},
    {"accentSoft", "#2c4d75", "#c9dff7"},
    {"accentMedium", "#4a90e2", "#2273cf"},
    {"accentHard", "#7db5f5", "#15539b"},
    {"grey0", "#1d1f21", "#ffffff"},
    {"grey1", "#26292c", "#f9fafb"},
    {"grey2", "#2f3236", "#f3f4f6"},
    {"grey3", "#383c41", "#e9ebee"},
    {"grey4", "#43484e", "#dbdee2"},
    {"grey5", "#575d64", "#bfc4ca"},
    {"grey6", "#7e858d", "#858c95"},
    {"grey7", "#989fa7", "#6a717a"},
    {"grey8", "#b4bac1", "#50565e"},
    {"grey9", "#d0d4d9", "#363b41"},
    {"grey10", "#eceef1", "#1c1f23"},
    {"obsolete_brandColor_placeholder", "#4093ff", "#4093ff"},
    {"brandAccentColor", "#5ba3ff", "#1a66c2"},
    {"yellow", "#f2cb57", "#f0c330"},
    {"darkYellow", "#d9a93a", "#7d5a00"},
    {"red", "#f58a84", "#c0302b"},
    {"green", "#7cc98a", "#20753a"},
    {"blueButtonBg", "#2b6cb8", "#1f6cc4"},
    {"blueHighlight", "#62aaf5", "#2273cf"},
}};
}
