#pragma once

#include "ut/themecolors.h"

#include <QColor>

#include <wx/colour.h>

namespace workbench {
QColor qtGuiColour(ut::EGuiColor colour);
wxColour wxGuiColour(ut::EGuiColor colour);
/// Gives the host's own controls, of all windows, the colours of the theme that is in force.
void applyThemeToControls(ut::EGuiColorTheme theme);
} // namespace workbench
