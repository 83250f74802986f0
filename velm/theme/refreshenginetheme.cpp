#include "velm/theme/refreshenginetheme.h"

#include "od/oderror.h"
#include "velm/bridge/conversions.h"
#include "velm/theme/qtthemecolors.h"

#include <QMessageLogger>
#include <QQmlEngine>
#include <QVariant>

namespace velm {
void refreshEngineTheme(std::unique_ptr<QQmlEngine>& engine, QApplication& application, PluginImportLoader&,
                        IQtController* controller, ut::EGuiColorTheme theme)
{
    // Destroys the former extension, which points to the engine.
    ut::ThemeColorManager::setExtension(std::make_unique<ut::ThemeColorsBase>());
    // An invalid colour map makes the QML side build a new one.
    engine->setProperty("colorMap", QVariant());
    try {
        ut::ThemeColorManager::setExtension(std::make_unique<QtThemeColors>(
            *engine, application, [controller] { return controller; }, theme, ERefreshQml::No));
    } catch (const OdError& error) {
        QMessageLogger(nullptr, 0, nullptr).critical().noquote() << toQt(error.description());
    }
}
} // namespace velm
