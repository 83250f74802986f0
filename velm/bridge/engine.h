#pragma once

#include "od/odstring.h"
#include "velm/bridge/pluginimportloader.h"
#include "velm/velm_export.h"

#include <QDir>
#include <QList>
#include <QQmlEngine>
#include <QQmlError>
#include <QString>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

/// The life of the one QML engine of the process. The host owns the engine; the order of calls is
/// undefineQtEnvVars() before the QApplication, setVELMExternalFunction(), setDefaultLocale(), createEngine(),
/// ignoreSingletonLeaksOnStartup(), refreshEngineTheme(); at the end cleanupBeforeShutdown(), resetEngine().
namespace velm {
enum class HasErrors
{
    Yes = 0,
    No = 1,
};

/// A new engine that knows the library's QML modules and the style; the Settings singleton is set up first.
VELM_EXPORT std::unique_ptr<QQmlEngine> createEngine(PluginImportLoader& loader);
/// Adds the "imports" folder beside the executable through the loader, then the modules.
VELM_EXPORT void addQmlPlugins(const std::vector<QString>& modules, PluginImportLoader& loader, QQmlEngine& engine);
/// Imports each module at version 1.0, which loads its plugin. No modules: nothing.
VELM_EXPORT void loadPlugins(const std::vector<QString>& modules, QQmlEngine& engine);

/// The object of a QML document, or null when it doesn't compile; its errors are logged.
VELM_EXPORT std::unique_ptr<QObject> loadQml(const QString& text, QQmlEngine& engine);
VELM_EXPORT std::unique_ptr<QObject> loadQml(const QUrl& url, QQmlEngine& engine);
/// Logs the description of each error as critical.
VELM_EXPORT HasErrors logErrors(const QList<QQmlError>& errors);

/// Takes the engine down: theme extension, engine, type registrations, QtFontConfig, Settings, in this order.
VELM_EXPORT void resetEngine(std::unique_ptr<QQmlEngine>& engine);
VELM_EXPORT void cleanupBeforeShutdown(QQmlEngine& engine);
/// Makes the objects that Qt keeps to the end of the process while the leak tracker looks away.
VELM_EXPORT void ignoreSingletonLeaksOnStartup(QQmlEngine& engine);

/// Empties the variables by which a Qt installation would steer the library; "TN_" before a name brings a value
/// through.
VELM_EXPORT void undefineQtEnvVars();
/// Numbers of the QML layer are those of the C locale and reject group separators.
VELM_EXPORT void setDefaultLocale();

/// The name of the folder of QML modules below the executable.
VELM_EXPORT QString getImportsFolder();
/// That folder itself; the executable's folder when there is none.
QDir importsDir();
VELM_EXPORT OdString getGuiDevelopmentConfigKey();
/// The folder with the sources of the QML modules in a development build; this build has none.
VELM_EXPORT std::optional<QString> getGuiDevelopmentFolder();
VELM_EXPORT bool haveGuiDevelopmentFolder();
/// The URL of a page, named by its path from the resource root ":/qt/qml/" or by its module and file name. `folder`
/// matters only in a development build, as the root of the module sources.
VELM_EXPORT QUrl getQUrl(QString file, QString module, QString folder);

/// Runs the function once on the calling thread's event loop; it can't be cancelled.
VELM_EXPORT void delayedCall(int milliseconds, std::function<void()> function);
/// Whether the object or a superclass has a method of that name; the object must not be null.
VELM_EXPORT bool qmlMethodIsInvokable(const QObject* object, const char* name);
} // namespace velm
