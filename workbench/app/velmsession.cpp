#include "app/velmsession.h"

#include "host/pagegroup.h"
#include "host/themecolours.h"
#include "ut/config.h"
#include "velm/bridge/engine.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/theme/refreshenginetheme.h"

#include <QApplication>

namespace workbench {
VelmSession::VelmSession(QApplication& application, const velm::ExternalFunctions& functions, PageGroup& pages)
    : m_application(application), m_pages(pages), m_theme(ut::configColorTheme())
{
    velm::setVELMExternalFunction(functions);
    velm::setDefaultLocale();
    m_engine = velm::createEngine(m_loader);
    start();
}

VelmSession::~VelmSession()
{
    m_pages.setEngine(nullptr);
    velm::cleanupBeforeShutdown(*m_engine);
    velm::resetEngine(m_engine);
}

void VelmSession::start()
{
    velm::ignoreSingletonLeaksOnStartup(*m_engine);
    velm::refreshEngineTheme(m_engine, m_application, m_loader, &m_pages, m_theme);
    applyThemeToControls(m_theme);
    m_pages.setEngine(m_engine.get());
}

void VelmSession::rebuildEngine()
{
    m_pages.setEngine(nullptr);
    velm::resetEngine(m_engine);
    m_engine = velm::createEngine(m_loader);
    m_loader.reload(*m_engine);
    start();
    if (onRebuilt)
        onRebuilt();
}

void VelmSession::setTheme(ut::EGuiColorTheme theme)
{
    velm::refreshEngineTheme(m_engine, m_application, m_loader, &m_pages, theme);
    noteTheme(theme);
}

void VelmSession::setThemeByManager(ut::EGuiColorTheme theme)
{
    if (ut::ThemeColorManager::setColorTheme(theme))
        noteTheme(theme);
}

void VelmSession::noteTheme(ut::EGuiColorTheme theme)
{
    m_theme = theme;
    ut::Config::writeLong(ut::ECfgGroup::Interface, L"COLORTHEME", static_cast<long>(theme));
    applyThemeToControls(theme);
    m_pages.applyTheme();
    if (onThemeChanged)
        onThemeChanged();
}
} // namespace workbench
