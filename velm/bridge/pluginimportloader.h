#pragma once

#include "velm/velm_export.h"

#include <QString>

#include <vector>

class QQmlEngine;

namespace velm {
/// Remembers the import paths that an engine was given, so that a rebuilt engine gets them again. It outlives engines.
class VELM_EXPORT PluginImportLoader
{
public:
    PluginImportLoader();
    PluginImportLoader(const PluginImportLoader&);
    PluginImportLoader(PluginImportLoader&&) noexcept;
    PluginImportLoader& operator=(const PluginImportLoader&);
    PluginImportLoader& operator=(PluginImportLoader&&) noexcept;
    ~PluginImportLoader();

    /// Adds a path to the engine and remembers it; false, with nothing done, when it is remembered already.
    bool addImportPath(const QString& path, QQmlEngine& engine);
    /// Loads those of the modules that aren't in `plugins`. `plugins` stays as it is, so every call loads anew.
    void addQmlPlugins(const std::vector<QString>& modules, QQmlEngine& engine);
    /// Gives an engine the "imports" folder beside the executable, then every remembered path, then loads `plugins`.
    void reload(QQmlEngine& engine);

    std::vector<QString> plugins;
    std::vector<QString> importPaths;
};
} // namespace velm
