#pragma once

#include "velm/bridge/externalfunctions.h"

#include <QByteArray>
#include <QLocale>
#include <QTemporaryDir>

#include <optional>

/// States of the process that last as long as their object; afterwards the former state is back.
namespace velmtest {
/// A variable of the environment; no value: it isn't set.
class ScopedEnvironment
{
public:
    explicit ScopedEnvironment(const char* name, std::optional<QByteArray> value = {});
    ~ScopedEnvironment();
    Q_DISABLE_COPY_MOVE(ScopedEnvironment)

private:
    void assign(const std::optional<QByteArray>& value);

    const char* m_name;
    std::optional<QByteArray> m_former;
};

/// An empty configuration store in a folder of its own.
class TemporaryConfig
{
public:
    TemporaryConfig();
    ~TemporaryConfig();
    Q_DISABLE_COPY_MOVE(TemporaryConfig)

    /// Opens the store anew, as the next process would.
    void reopen();

private:
    QTemporaryDir m_folder;
    std::optional<ScopedEnvironment> m_variable;
};

/// A default locale.
class ScopedLocale
{
public:
    explicit ScopedLocale(const QLocale& locale) { QLocale::setDefault(locale); }
    ~ScopedLocale() { QLocale::setDefault(m_former); }
    Q_DISABLE_COPY_MOVE(ScopedLocale)

private:
    QLocale m_former;
};

/// The host's callbacks; afterwards there are none.
class ScopedExternalFunctions
{
public:
    explicit ScopedExternalFunctions(const velm::ExternalFunctions& functions)
    {
        velm::setVELMExternalFunction(functions);
    }
    ~ScopedExternalFunctions() { velm::setVELMExternalFunction({}); }
    Q_DISABLE_COPY_MOVE(ScopedExternalFunctions)
};
} // namespace velmtest
