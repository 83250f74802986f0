#pragma once

#include "ut/themecolors.h"
#include "velm/bridge/pluginimportloader.h"
#include "velm/velm_export.h"

#include <memory>

class QApplication;
class QQmlEngine;

namespace velm {
class IQtController;

/// A change of theme as the host starts it: the engine's colour map is built anew and a new QtThemeColors becomes the
/// extension of ut::ThemeColorManager. The loader isn't used; the controller may be null.
VELM_EXPORT void refreshEngineTheme(std::unique_ptr<QQmlEngine>& engine, QApplication& application,
                                    PluginImportLoader& loader, IQtController* controller, ut::EGuiColorTheme theme);
} // namespace velm
