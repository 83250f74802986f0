#pragma once

#include "ut/themecolors.h"
#include "velm/images/bitmapholder.h"
#include "velm/velm_export.h"

class QString;
class wxBitmap;
class wxString;

/// The tool icons, which are resources ":/toolicons/<size>/<dark or light>/<name>.png". The nearest size that exists is
/// taken and scaled, in the theme asked for or else in the other one. A name that nobody has gives a null picture, or
/// the icon "default" of the folder for size -1 when `tryDefault` is set.
namespace velm {
/// Holds the Qt image. `size` in pixels, 15 at least.
VELM_EXPORT BitmapHolder getQtToolBitmap(const QString& name, int size, bool tryDefault, ut::EGuiColorTheme theme);
/// Holds the host bitmap.
VELM_EXPORT BitmapHolder getToolBitmap(const QString& name, int size, bool tryDefault, ut::EGuiColorTheme theme);
/// By a resource id "BMP_<16, 32 or 64>_<name>", with "_DARK" at the end for the dark theme; "_dark" stays in the name.
/// Any other id is looked up in the host's XML resources.
VELM_EXPORT wxBitmap getToolBitmapFromID(const wxString& id);
} // namespace velm
