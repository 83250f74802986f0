#pragma once

#include "ut/themecolors.h"
#include "velm/bridge/pluginimportloader.h"

#include <functional>
#include <memory>

class QApplication;
class QQmlEngine;

namespace velm {
struct ExternalFunctions;
}

namespace workbench {
class PageGroup;

/// Velm from its start to its end, in the order that it asks for. The application's environment was prepared before the
/// application object was made.
class VelmSession
{
public:
    /// The pages are loaded as they come; they outlive the session.
    VelmSession(QApplication& application, const velm::ExternalFunctions& functions, PageGroup& pages);
    ~VelmSession();

    /// A new engine under the open pages; their controllers stay.
    void rebuildEngine();

    ut::EGuiColorTheme theme() const { return m_theme; }
    /// Changes the theme and stores it.
    void setTheme(ut::EGuiColorTheme theme);
    /// The same by the road of those who know the colour manager alone: the pages are loaded anew.
    void setThemeByManager(ut::EGuiColorTheme theme);

    std::function<void()> onThemeChanged;
    std::function<void()> onRebuilt; ///< what the host told velm's singletons has to be told again

private:
    void start();
    void noteTheme(ut::EGuiColorTheme theme);

    QApplication& m_application;
    PageGroup& m_pages;
    velm::PluginImportLoader m_loader;
    std::unique_ptr<QQmlEngine> m_engine;
    ut::EGuiColorTheme m_theme;
};
} // namespace workbench
