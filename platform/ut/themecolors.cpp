#include "ut/themecolors.h"

#include "ut/config.h"

#include <utility>

namespace ut {
// Kept to the end of the process: an extension that nobody released must not be destroyed after what it works on.
static std::unique_ptr<IThemeColors>& installed()
{
    static auto* const extension = new std::unique_ptr<IThemeColors>();
    return *extension;
}

IThemeColors::~IThemeColors() = default;

unsigned long ThemeColorsBase::guiColorRef(EGuiColor)
{
    return 0xC0C0C0;
}

bool ThemeColorsBase::setColorTheme(EGuiColorTheme)
{
    return false;
}

void ThemeColorsBase::setGuiColor(EGuiColor, unsigned long)
{}

std::unique_ptr<IThemeColors> ThemeColorManager::setExtension(std::unique_ptr<IThemeColors> extension)
{
    if (!extension)
        return nullptr;
    // The former one goes last: what its destructor asks is answered by the new one.
    const auto former = std::exchange(installed(), std::move(extension));
    return nullptr;
}

void ThemeColorManager::releaseExtension()
{
    const auto former = std::exchange(installed(), nullptr);
}

IThemeColors& ThemeColorManager::colors()
{
    static ThemeColorsBase base;
    return installed() ? *installed() : base;
}

bool ThemeColorManager::setColorTheme(EGuiColorTheme theme)
{
    return colors().setColorTheme(theme);
}

unsigned long guiColorRef(EGuiColor color)
{
    return ThemeColorManager::colors().guiColorRef(color);
}

EGuiColorTheme configColorTheme()
{
    long theme = 0;
    const bool light =
        Config::read(ECfgGroup::Interface, L"COLORTHEME", theme) && theme == static_cast<long>(EGuiColorTheme::Light);
    return light ? EGuiColorTheme::Light : EGuiColorTheme::Dark;
}
} // namespace ut
