#include "host/colordescription.h"

#include "panels/propertytexts.h"
#include "ut/themecolors.h"
#include "velm/bridge/conversions.h"

namespace workbench {
namespace {
constexpr int byLayerAndByBlockFlag = 2;
constexpr int byLayerAsBlackFlag = 4;
constexpr int whiteModeFlag = 32;

velm::ColorDescription describeByLayer(const wxColour& byLayerColor, bool layerOverride, int flags)
{
    if (flags & whiteModeFlag)
        return {false, _("White"), *wxWHITE};
    const wxString name = velm::wxFromQt(colorText(OdCmColor(OdCmColor::kByLayer)));
    if (!(flags & byLayerAsBlackFlag))
        return {layerOverride, name, byLayerColor};
    return {false, flags & byLayerAndByBlockFlag ? name : _("Black"), *wxBLACK};
}
} // namespace

bool isBackgroundDark()
{
    return ut::configColorTheme() == ut::EGuiColorTheme::Dark;
}

velm::ColorDescription describeColor(const OdCmColor& color, const wxColour& byLayerColor, bool layerOverride,
                                     int flags)
{
    if (color.isByLayer())
        return describeByLayer(byLayerColor, layerOverride, flags);
    const wxString name = velm::wxFromQt(colorText(color));
    // Outside of a block its entities are drawn so.
    if (color.isByBlock())
        return {true, name, isBackgroundDark() ? *wxWHITE : *wxBLACK};
    if (color.isNone())
        return {true, name, {}};
    const QColor shown = velm::toQtColor(color, odcmIndexPalette(isBackgroundDark()));
    const auto channel = [](int value) { return static_cast<unsigned char>(value); };
    return {false, name, wxColour(channel(shown.red()), channel(shown.green()), channel(shown.blue()))};
}
} // namespace workbench
