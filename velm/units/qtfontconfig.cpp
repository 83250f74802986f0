#include "velm/units/qtfontconfig.h"

#include <QGuiApplication>
#include <QJSEngine>
#include <QScreen>

#include <cmath>
#include <utility>

namespace velm {
std::unique_ptr<QtFontConfig> QtFontConfig::m_pInstance;

QtFontConfig::QtFontConfig() = default;
QtFontConfig::~QtFontConfig() = default;

QtFontConfig* QtFontConfig::instance()
{
    setupInstance();
    return m_pInstance.get();
}

QtFontConfig* QtFontConfig::create(QQmlEngine*, QJSEngine*)
{
    QtFontConfig* result = instance();
    QJSEngine::setObjectOwnership(result, QJSEngine::CppOwnership);
    return result;
}

void QtFontConfig::setupInstance()
{
    if (m_pInstance)
        return;
    m_pInstance.reset(new QtFontConfig);
    if (const auto* application = QCoreApplication::instance();
        application != nullptr && application->thread() != m_pInstance->thread())
        m_pInstance->moveToThread(application->thread());
}

void QtFontConfig::destroyInstance()
{
    // The slot is empty before the object dies: whoever asks for the singleton meanwhile gets a new one.
    const std::unique_ptr<QtFontConfig> doomed = std::move(m_pInstance);
}

QFont::HintingPreference QtFontConfig::defaultHintingPreference() const
{
    return QFont::PreferFullHinting;
}

QQuickWindow::TextRenderType QtFontConfig::defaultRenderType() const
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr || std::fmod(screen->devicePixelRatio(), 1.0) != 0.0)
        return QQuickWindow::QtTextRendering;
    return QQuickWindow::NativeTextRendering;
}
} // namespace velm
