#include "support/scopes.h"

#include "ut/config.h"

namespace velmtest {
ScopedEnvironment::ScopedEnvironment(const char* name, std::optional<QByteArray> value) : m_name(name)
{
    if (qEnvironmentVariableIsSet(name))
        m_former = qgetenv(name);
    assign(value);
}

ScopedEnvironment::~ScopedEnvironment()
{
    assign(m_former);
}

void ScopedEnvironment::assign(const std::optional<QByteArray>& value)
{
    if (value)
        qputenv(m_name, *value);
    else
        qunsetenv(m_name);
}

TemporaryConfig::TemporaryConfig()
{
    m_variable.emplace("TANDOLIN_CONFIG", m_folder.filePath("settings.ini").toUtf8());
    reopen();
}

TemporaryConfig::~TemporaryConfig()
{
    m_variable.reset();
    reopen();
}

void TemporaryConfig::reopen()
{
    ut::Config::reopen();
}
} // namespace velmtest
