#include "velm/bridge/engine.h"

#include "ut/environment.h"
#include "ut/leaktracking.h"
#include "ut/themecolors.h"
#include "velm/bridge/conversions.h"
#include "velm/units/qtfontconfig.h"
#include "velm/units/settings.h"

#include <QColorSpace>
#include <QFile>
#include <QFontDatabase>
#include <QLocale>
#include <QMessageLogger>
#include <QMetaMethod>
#include <QMetaType>
#include <QQmlComponent>
#include <QQuickStyle>
#include <QTimer>

namespace velm {
namespace {
QString withSlash(QString folder)
{
    if (!folder.endsWith('/'))
        folder += '/';
    return folder;
}

/// Gives the engine a path through the loader. A loader that remembers the path from an earlier engine adds nothing,
/// and the new engine needs it all the same.
void addImportPath(const QString& path, PluginImportLoader& loader, QQmlEngine& engine)
{
    if (!loader.addImportPath(path, engine))
        engine.addImportPath(path);
}

void addDevelopmentPaths(const QString& developmentFolder, PluginImportLoader& loader, QQmlEngine& engine)
{
    const QDir plugins(withSlash(developmentFolder) + "qml/plugins");
    addImportPath(plugins.path(), loader, engine);
    QDir style = plugins;
    style.cd("Tandolin");
    style.cd("API");
    style.cd("Core");
    if (style.exists())
        addImportPath(style.path(), loader, engine);
    else
        QMessageLogger(nullptr, 0, nullptr).warning().noquote().nospace()
            << "Path to Style plugin source " << style.path() << " does not exist.";
}

std::unique_ptr<QObject> createWithoutErrors(QQmlComponent& component)
{
    if (logErrors(component.errors()) == HasErrors::Yes)
        return nullptr;
    return std::unique_ptr<QObject>(component.create(nullptr));
}

/// Empties a variable, then takes the value that a developer gave under its name behind "TN_".
void overrideVariable(const OdString& name)
{
    if (!ut::getEnvironment(name).isEmpty())
        ut::setEnvironment(name, L"");
    const OdString value = ut::getEnvironment(L"TN_" + name);
    if (!value.isEmpty())
        ut::setEnvironment(name, value);
}
} // namespace

std::unique_ptr<QQmlEngine> createEngine(PluginImportLoader& loader)
{
    Settings::setupInstance();
    std::unique_ptr<QQmlEngine> engine;
    {
        const ut::IgnoreMemoryLeakTracking ignore;
        engine = std::make_unique<QQmlEngine>(nullptr);
    }

    const QDir imports = importsDir();
    QDir modules = imports;
    modules.cd("Tandolin");
    addImportPath(modules.path(), loader, *engine);
    addImportPath(imports.path(), loader, *engine);

    if (const std::optional<QString> folder = getGuiDevelopmentFolder())
        addDevelopmentPaths(*folder, loader, *engine);
    else
        loader.addQmlPlugins({"Tandolin.UI", "Tandolin.API.Core.Themes", "Tandolin.API.Core.Style"}, *engine);

    // Only now is the style's import path known, and no control was created yet.
    QQuickStyle::setStyle("Tandolin.API.Core.Style");
    loader.addQmlPlugins({"Tandolin.API.Resources"}, *engine);
    return engine;
}

void addQmlPlugins(const std::vector<QString>& modules, PluginImportLoader& loader, QQmlEngine& engine)
{
    addImportPath(importsDir().path(), loader, engine);
    loader.addQmlPlugins(modules, engine);
}

void loadPlugins(const std::vector<QString>& modules, QQmlEngine& engine)
{
    if (modules.empty())
        return;
    QString text = "import QtQuick\n";
    for (const QString& module : modules)
        text += QString("import %1 1.0\n").arg(module);
    text += "QtObject {}\n";
    loadQml(text, engine);
}

std::unique_ptr<QObject> loadQml(const QString& text, QQmlEngine& engine)
{
    QQmlComponent component(&engine, nullptr);
    component.setData(text.toUtf8(), QUrl());
    return createWithoutErrors(component);
}

std::unique_ptr<QObject> loadQml(const QUrl& url, QQmlEngine& engine)
{
    QQmlComponent component(&engine, url, nullptr);
    return createWithoutErrors(component);
}

HasErrors logErrors(const QList<QQmlError>& errors)
{
    for (const QQmlError& error : errors)
        QMessageLogger(nullptr, 0, nullptr).critical().noquote() << error.description();
    return errors.isEmpty() ? HasErrors::No : HasErrors::Yes;
}

void resetEngine(std::unique_ptr<QQmlEngine>& engine)
{
    ut::ThemeColorManager::releaseExtension();
    engine.reset();
    qmlClearTypeRegistrations();
    QtFontConfig::destroyInstance();
    Settings::destroyInstance();
}

void cleanupBeforeShutdown(QQmlEngine& engine)
{
    QFontDatabase::removeAllApplicationFonts();
    engine.collectGarbage();
}

void ignoreSingletonLeaksOnStartup(QQmlEngine& engine)
{
    const ut::IgnoreMemoryLeakTracking ignore;
    QMetaType::fromType<QJSValue>().id();
    loadQml(
        QString("\nimport QtQuick\nimport Tandolin.API.Controls\n\nItem { \n    id: root\n    \n    IconButton {}\n}"),
        engine);
    const QColorSpace colorSpace(QColorSpace::SRgb);
}

void undefineQtEnvVars()
{
    for (const wchar_t* name :
         {L"QT_PLUGIN_PATH", L"QT_QPA_PLATFORM_PLUGIN_PATH", L"QT_QUICK_CONTROLS_CONF", L"QT_QUICK_CONTROLS_STYLE"})
        overrideVariable(name);

    const OdString platform = ut::getEnvironment(L"TN_QT_QPA_PLATFORM");
    if (!platform.isEmpty())
        ut::setEnvironment(L"QT_QPA_PLATFORM", platform);
    else if (ut::getEnvironment(L"QT_QPA_PLATFORM") != OdString(L"xcb"))
        overrideVariable(L"QT_QPA_PLATFORM");
}

void setDefaultLocale()
{
    QLocale locale = QLocale::c();
    locale.setNumberOptions(locale.numberOptions() | QLocale::RejectGroupSeparator);
    QLocale::setDefault(locale);
}

QString getImportsFolder()
{
    return "imports";
}

QDir importsDir()
{
    QDir result(toQt(ut::getExecutableFolder(true)));
    result.cd(getImportsFolder());
    return result;
}

OdString getGuiDevelopmentConfigKey()
{
    return L"GUIDEVELOPMENTRELEASE";
}

std::optional<QString> getGuiDevelopmentFolder()
{
    return {};
}

bool haveGuiDevelopmentFolder()
{
    return false;
}

QUrl getQUrl(QString file, QString module, QString folder)
{
    module.replace('.', '/');
    if (const std::optional<QString> developmentFolder = getGuiDevelopmentFolder())
        return QUrl::fromLocalFile(withSlash(*developmentFolder) + withSlash(folder) + withSlash(module) + file);
    QString path = ":/qt/qml/" + file;
    if (!QFile::exists(path))
        path = ":/qt/qml/" + module + '/' + file;
    return QUrl("qrc" + path, QUrl::TolerantMode);
}

void delayedCall(int milliseconds, std::function<void()> function)
{
    QTimer::singleShot(milliseconds, std::move(function));
}

bool qmlMethodIsInvokable(const QObject* object, const char* name)
{
    // The methods of a meta-object begin with those of its superclasses.
    const QMetaObject* metaObject = object->metaObject();
    const int count = metaObject == nullptr ? 0 : metaObject->methodCount();
    for (int index = 0; index < count; ++index)
        if (metaObject->method(index).name() == name)
            return true;
    return false;
}
} // namespace velm
