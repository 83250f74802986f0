#include "velm/bridge/pluginimportloader.h"

#include "velm/bridge/engine.h"

#include <algorithm>

namespace velm {
PluginImportLoader::PluginImportLoader() = default;
PluginImportLoader::PluginImportLoader(const PluginImportLoader&) = default;
PluginImportLoader::PluginImportLoader(PluginImportLoader&&) noexcept = default;
PluginImportLoader& PluginImportLoader::operator=(const PluginImportLoader&) = default;
PluginImportLoader& PluginImportLoader::operator=(PluginImportLoader&&) noexcept = default;
PluginImportLoader::~PluginImportLoader() = default;

bool PluginImportLoader::addImportPath(const QString& path, QQmlEngine& engine)
{
    if (std::find(importPaths.begin(), importPaths.end(), path) != importPaths.end())
        return false;
    importPaths.push_back(path);
    engine.addImportPath(path);
    return true;
}

void PluginImportLoader::addQmlPlugins(const std::vector<QString>& modules, QQmlEngine& engine)
{
    std::vector<QString> wanted;
    for (const QString& module : modules)
        if (std::find(plugins.begin(), plugins.end(), module) == plugins.end())
            wanted.push_back(module);
    // `plugins` deliberately stays as it is: every call loads its modules anew.
    loadPlugins(wanted, engine);
}

void PluginImportLoader::reload(QQmlEngine& engine)
{
    engine.addImportPath(importsDir().path());
    for (const QString& path : importPaths)
        engine.addImportPath(path);
    loadPlugins(plugins, engine);
}
} // namespace velm
