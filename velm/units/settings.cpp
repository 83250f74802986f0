#include "velm/units/settings.h"

#include "velm/bridge/conversions.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/units/iunitformatter.h"

#include <QCoreApplication>
#include <QJSEngine>

#include <utility>

namespace velm {
struct Settings::Pimpl
{
    int tooltipDelay = 500;
    int linearUnitPrecision = 0;
    int angularUnitPrecision = 0;
    int angularUnitType = -1;
    QString linearUnitString;
    QString angularUnitString;
    const OdApDocument* document = nullptr; // not owned
    bool tooltips = true;
};

std::unique_ptr<Settings> Settings::m_pInstance;

namespace {
template <typename T>
bool assign(T& field, const T& value)
{
    if (field == value)
        return false;
    field = value;
    return true;
}
} // namespace

Settings::Settings() : m_pimpl(new Pimpl)
{}

Settings::~Settings() = default;

Settings* Settings::instance()
{
    setupInstance();
    return m_pInstance.get();
}

Settings* Settings::create(QQmlEngine*, QJSEngine*)
{
    Settings* result = instance();
    QJSEngine::setObjectOwnership(result, QJSEngine::CppOwnership);
    return result;
}

void Settings::setupInstance()
{
    if (m_pInstance)
        return;
    m_pInstance.reset(new Settings);
    if (const auto* application = QCoreApplication::instance();
        application != nullptr && application->thread() != m_pInstance->thread())
        m_pInstance->moveToThread(application->thread());
}

void Settings::destroyInstance()
{
    // The slot is empty before the object dies: whoever asks for the singleton meanwhile gets a new one.
    const std::unique_ptr<Settings> doomed = std::move(m_pInstance);
}

void Settings::setDoc(const OdApDocument* document)
{
    m_pimpl->document = document;
}

bool Settings::tooltips() const
{
    return m_pimpl->tooltips;
}

void Settings::setTooltips(bool tooltips)
{
    if (assign(m_pimpl->tooltips, tooltips))
        Q_EMIT tooltipsChanged();
}

int Settings::tooltipDelay() const
{
    return m_pimpl->tooltipDelay;
}

void Settings::setTooltipDelay(int milliseconds)
{
    if (assign(m_pimpl->tooltipDelay, milliseconds))
        Q_EMIT tooltipDelayChanged();
}

int Settings::getLinearUnitPrecision() const
{
    return m_pimpl->linearUnitPrecision;
}

void Settings::setLinearUnitPrecision(int precision)
{
    if (assign(m_pimpl->linearUnitPrecision, precision))
        Q_EMIT linearUnitPrecisionChanged();
}

int Settings::getAngularUnitPrecision() const
{
    return m_pimpl->angularUnitPrecision;
}

void Settings::setAngularUnitPrecision(int precision)
{
    if (assign(m_pimpl->angularUnitPrecision, precision))
        Q_EMIT angularUnitPrecisionChanged();
}

QString Settings::getLinearUnitString() const
{
    return m_pimpl->linearUnitString;
}

void Settings::setLinearUnitString(const QString& unit)
{
    if (assign(m_pimpl->linearUnitString, unit))
        Q_EMIT linearUnitStringChanged();
}

QString Settings::getAngularUnitString() const
{
    return m_pimpl->angularUnitString;
}

void Settings::setAngularUnitType(int type)
{
    if (!assign(m_pimpl->angularUnitType, type))
        return;
    switch (type) {
    case 0:
        m_pimpl->angularUnitString = QChar(0x00B0);
        break;
    case 2:
        m_pimpl->angularUnitString = "g";
        break;
    case 3:
        m_pimpl->angularUnitString = "r";
        break;
    case 1:
    case 4:
        m_pimpl->angularUnitString.clear();
        break;
    default:
        break;
    }
    // Deliberately also when the text stayed the same.
    Q_EMIT angularUnitStringChanged();
}

int Settings::getAngularUnitType() const
{
    return m_pimpl->angularUnitType;
}

QString Settings::formatAngle(double value)
{
    IUnitFormatter* formatter = getUnitFormatter(value);
    return formatter == nullptr ? QString() : toQt(formatter->formatAngular(nullptr, 0));
}

double Settings::parseAngle(QString in) const
{
    IUnitFormatter* formatter = getUnitFormatter(0.0);
    double result = 0.0;
    if (formatter != nullptr)
        formatter->parseAngular(&result, wxFromQt(in.trimmed()), nullptr, 0);
    return result;
}
} // namespace velm
