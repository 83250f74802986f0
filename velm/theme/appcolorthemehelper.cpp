#include "velm/theme/appcolorthemehelper.h"

#include "ut/themecolors.h"
#include "velm/bridge/engine.h"
#include "velm/theme/qtthemecolors.h"

#include <QApplication>
#include <QQmlEngine>

namespace velm {
struct AppColorThemeHelper::Pimpl
{
    // In this order: the application goes before the engine.
    std::unique_ptr<QQmlEngine> engine;
    std::unique_ptr<QApplication> application;
    PluginImportLoader loader;
};

AppColorThemeHelper::AppColorThemeHelper() : m_pimpl(new Pimpl)
{
    static char name[] = "";
    static char* arguments[] = {name, nullptr};
    static int count = 1;
    m_pimpl->application = std::make_unique<QApplication>(count, arguments);
}

AppColorThemeHelper::~AppColorThemeHelper()
{
    // The extension that setUp() installed must not outlive the engine.
    if (m_pimpl->engine)
        ut::ThemeColorManager::releaseExtension();
}

void AppColorThemeHelper::setUp()
{
    m_pimpl->engine = std::make_unique<QQmlEngine>();
    addQmlPlugins({"Tandolin.API.Core.Themes"}, m_pimpl->loader, *m_pimpl->engine);
    ut::ThemeColorManager::setExtension(std::make_unique<QtThemeColors>(*m_pimpl->engine, *m_pimpl->application,
                                                                        std::function<IQtController*()>(),
                                                                        ut::configColorTheme(), ERefreshQml::Yes));
}
} // namespace velm
