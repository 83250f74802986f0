#include "velm/units/unitsinputcontroller.h"

#include "velm/bridge/externalfunctions.h"
#include "velm/dialogs/idialogfactory.h"
#include "velm/units/unitsinputcontrollerdelegate.h"

#include <QPointer>

#include <cmath>
#include <utility>

namespace velm {
struct UnitsInputController::Pimpl
{
    std::unique_ptr<IUnitsInputControllerDelegate> delegate; // never null
    int inputType = 0;
};

UnitsInputController::UnitsInputController(QObject* parent) : QObject(parent), m_pimpl(new Pimpl)
{
    setDelegate(std::make_unique<UnitsInputControllerDelegate>(m_pimpl->inputType));
    connect(this, &UnitsInputController::inputTypeChanged, this, &UnitsInputController::onInputTypeChanged);
}

UnitsInputController::~UnitsInputController() = default;

bool UnitsInputController::getInputType() const
{
    return m_pimpl->delegate->getInputType() != 0;
}

int UnitsInputController::getPrecision() const
{
    return m_pimpl->delegate->getPrecision();
}

QString UnitsInputController::getUnitString() const
{
    return m_pimpl->delegate->getUnitString();
}

bool UnitsInputController::shouldShowUnitLabel() const
{
    return m_pimpl->delegate->shouldShowUnitLabel();
}

double UnitsInputController::getMinimumValue() const
{
    return m_pimpl->delegate->getMinimumValue();
}

void UnitsInputController::setMinimumValue(double minimum)
{
    m_pimpl->delegate->setMinimumValue(minimum);
    Q_EMIT minimumValueChanged();
}

double UnitsInputController::getMaximumValue() const
{
    return m_pimpl->delegate->getMaximumValue();
}

void UnitsInputController::setMaximumValue(double maximum)
{
    m_pimpl->delegate->setMaximumValue(maximum);
    Q_EMIT maximumValueChanged();
}

IUnitsInputControllerDelegate* UnitsInputController::getDelegate() const
{
    return m_pimpl->delegate.get();
}

void UnitsInputController::setDelegate(std::unique_ptr<IUnitsInputControllerDelegate> delegate)
{
    m_pimpl->delegate = std::move(delegate);
    Q_EMIT precisionChanged();
    Q_EMIT unitStringChanged();
    Q_EMIT showUnitLabelChanged();
    Q_EMIT valueChanged();
    Q_EMIT minimumValueChanged();
    Q_EMIT maximumValueChanged();
}

QString UnitsInputController::formatValue(double value) const
{
    return m_pimpl->delegate->formatValue(value);
}

double UnitsInputController::parseValue(QString text) const
{
    return m_pimpl->delegate->parseValue(text);
}

bool UnitsInputController::validateValue(QString text) const
{
    return m_pimpl->delegate->validateValue(text);
}

double UnitsInputController::parseValueOrFallback(QString text, double fallbackValue) const
{
    const double value = m_pimpl->delegate->parseValue(text);
    return std::isnan(value) ? fallbackValue : value;
}

double UnitsInputController::getValidatedValue(QString text, double fallbackValue) const
{
    const double value = parseValueOrFallback(text, fallbackValue);
    const double minimum = m_pimpl->delegate->getMinimumValue();
    const double maximum = m_pimpl->delegate->getMaximumValue();
    if (minimum > value)
        return minimum;
    return maximum < value ? maximum : value;
}

void UnitsInputController::setShowUnitLabel(bool show)
{
    m_pimpl->delegate->setShowUnitLabel(show);
    Q_EMIT showUnitLabelChanged();
}

double UnitsInputController::getValue() const
{
    return m_pimpl->delegate->getValue();
}

void UnitsInputController::setValue(double value)
{
    const double minimum = m_pimpl->delegate->getMinimumValue();
    const double maximum = m_pimpl->delegate->getMaximumValue();
    if (value > maximum)
        value = maximum;
    // Written so that a NaN gives the minimum.
    m_pimpl->delegate->setValue(value > minimum ? value : minimum);
    Q_EMIT valueChanged();
}

void UnitsInputController::setInputType(int inputType)
{
    if (std::exchange(m_pimpl->inputType, inputType) != inputType)
        Q_EMIT inputTypeChanged();
}

void UnitsInputController::launchQuickCalc()
{
    IDialogFactory* factory = dlgFactory();
    if (factory == nullptr)
        return;
    OdDbEvalVariantPtr variant = OdDbEvalVariant::init(m_pimpl->delegate->getValue());
    // The page may go while the calculator is open.
    const QPointer<UnitsInputController> self(this);
    factory->quickCalculator(nullptr, variant, true);
    if (self && variant && !std::isnan(variant->getAsDouble()))
        setValue(variant->getAsDouble());
}

void UnitsInputController::onInputTypeChanged()
{
    setDelegate(std::make_unique<UnitsInputControllerDelegate>(m_pimpl->inputType));
}

void UnitsInputController::onSettingsChanged()
{
    Q_EMIT precisionChanged();
    Q_EMIT unitStringChanged();
    Q_EMIT showUnitLabelChanged();
}
} // namespace velm
