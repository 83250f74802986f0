#pragma once

#include "platform_export.h"

#include <memory>

namespace ut {
/// The host's interface colours, by what they are for.
enum class EGuiColor : int
{
    PanelBackground,
    RibbonBackground,
    PanelsetIconStripBase,
    PanelsetIconStripActive,
    ComboBackground,
    InputBackground,
    ButtonLightBackground,
    MenuItemHoverBackground,
    AccentSoft,
    AccentMedium,
    AccentHard,
    Grey0,
    Grey1,
    Grey2,
    Grey3,
    Grey4,
    Grey5,
    Grey6,
    Grey7,
    Grey8,
    Grey9,
    Grey10,
    Brand,
    BrandAccent,
    Yellow,
    DarkYellow,
    Red,
    Green,
    BlueButtonBackground,
    BlueHighlight,
};

enum class EGuiColorTheme : int
{
    Dark = 0,
    Light = 1,
};

/// Gives the interface colours of a theme. A colour is a Windows colour value 0x00BBGGRR.
class PLATFORM_EXPORT IThemeColors
{
public:
    virtual ~IThemeColors();
    virtual unsigned long guiColorRef(EGuiColor color) = 0;
    /// True when the theme is in force.
    virtual bool setColorTheme(EGuiColorTheme theme) = 0;
    virtual void setGuiColor(EGuiColor color, unsigned long value) = 0;
};

/// The colours of a program without a theme: a middle grey for all, and no theme to set.
class PLATFORM_EXPORT ThemeColorsBase : public IThemeColors
{
public:
    unsigned long guiColorRef(EGuiColor color) override;
    bool setColorTheme(EGuiColorTheme theme) override;
    void setGuiColor(EGuiColor color, unsigned long value) override;
};

/// The process-wide road to the interface colours: an extension answers, or ThemeColorsBase while there is none.
class PLATFORM_EXPORT ThemeColorManager
{
public:
    /// Installs an extension in place of the former one, which is destroyed. A null extension is given back and changes
    /// nothing; otherwise the result is null.
    static std::unique_ptr<IThemeColors> setExtension(std::unique_ptr<IThemeColors> extension);
    /// Destroys the extension.
    static void releaseExtension();
    static IThemeColors& colors();
    static bool setColorTheme(EGuiColorTheme theme);
};

PLATFORM_EXPORT unsigned long guiColorRef(EGuiColor color);

/// The theme that the configuration names under "COLORTHEME", or the dark one.
PLATFORM_EXPORT EGuiColorTheme configColorTheme();
} // namespace ut
