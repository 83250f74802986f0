#include "velm/units/unitsinputcontrollerdelegate.h"

#include "velm/units/settings.h"
#include "velm/units/settingsunitsdataproviders.h"

#include <cmath>
#include <limits>
#include <utility>

namespace velm {
struct UnitsInputControllerDelegate::Pimpl
{
    std::unique_ptr<ILinearUnitsDataProvider> provider; // never null
    double value = 0.0;
    double minimum = std::numeric_limits<double>::lowest();
    double maximum = std::numeric_limits<double>::max();
    int inputType = 0;
    bool showUnitLabel = true;

    void takeBounds()
    {
        minimum = provider->getMinimumValue();
        maximum = provider->getMaximumValue();
    }
};

UnitsInputControllerDelegate::UnitsInputControllerDelegate(int inputType) : m_pimpl(new Pimpl)
{
    m_pimpl->inputType = inputType != 0 ? 1 : 0;
    if (m_pimpl->inputType == 1)
        m_pimpl->provider = std::make_unique<SettingsAngularUnitsDataProvider>();
    else
        m_pimpl->provider = std::make_unique<SettingsLinearUnitsDataProvider>();
    m_pimpl->takeBounds();
    // Deliberately the linear signals for angles, too, and the angular ones for none.
    const Settings* settings = Settings::instance();
    connect(settings, &Settings::linearUnitPrecisionChanged, this, &UnitsInputControllerDelegate::precisionChanged);
    connect(settings, &Settings::linearUnitStringChanged, this, &UnitsInputControllerDelegate::unitStringChanged);
}

UnitsInputControllerDelegate::~UnitsInputControllerDelegate() = default;

int UnitsInputControllerDelegate::getInputType() const
{
    return m_pimpl->inputType;
}

int UnitsInputControllerDelegate::getPrecision() const
{
    return m_pimpl->provider->getPrecision();
}

QString UnitsInputControllerDelegate::getUnitString() const
{
    return m_pimpl->showUnitLabel ? m_pimpl->provider->getUnitString() : QString();
}

bool UnitsInputControllerDelegate::shouldShowUnitLabel() const
{
    return m_pimpl->showUnitLabel;
}

void UnitsInputControllerDelegate::setShowUnitLabel(bool show)
{
    if (std::exchange(m_pimpl->showUnitLabel, show) != show)
        Q_EMIT showUnitLabelChanged();
}

double UnitsInputControllerDelegate::getValue() const
{
    return m_pimpl->value;
}

void UnitsInputControllerDelegate::setValue(double value)
{
    // Written so that a NaN is dropped, too.
    if (!(std::abs(m_pimpl->value - value) > std::numeric_limits<double>::epsilon()))
        return;
    m_pimpl->value = value;
    Q_EMIT valueChanged();
}

double UnitsInputControllerDelegate::getMinimumValue() const
{
    return m_pimpl->minimum;
}

void UnitsInputControllerDelegate::setMinimumValue(double minimum)
{
    if (m_pimpl->minimum == minimum)
        return;
    m_pimpl->minimum = minimum;
    Q_EMIT minimumValueChanged();
}

double UnitsInputControllerDelegate::getMaximumValue() const
{
    return m_pimpl->maximum;
}

void UnitsInputControllerDelegate::setMaximumValue(double maximum)
{
    if (m_pimpl->maximum == maximum)
        return;
    m_pimpl->maximum = maximum;
    Q_EMIT maximumValueChanged();
}

QString UnitsInputControllerDelegate::formatValue(double value) const
{
    return m_pimpl->provider->formatValue(value);
}

double UnitsInputControllerDelegate::parseValue(const QString& text) const
{
    return m_pimpl->provider->parseValue(text);
}

bool UnitsInputControllerDelegate::validateValue(const QString& text) const
{
    return m_pimpl->provider->validateValue(text);
}

void UnitsInputControllerDelegate::setDataProvider(std::unique_ptr<ILinearUnitsDataProvider> provider)
{
    m_pimpl->provider = std::move(provider);
    m_pimpl->takeBounds();
    Q_EMIT precisionChanged();
    Q_EMIT unitStringChanged();
    Q_EMIT minimumValueChanged();
    Q_EMIT maximumValueChanged();
    Q_EMIT valueChanged();
}
} // namespace velm
