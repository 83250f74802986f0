#pragma once

#include "velm/units/iunitsinputcontrollerdelegate.h"

#include <QObject>

namespace velm {
/// The value of a numeric field with its bounds, formatted and parsed by a data provider.
class VELM_EXPORT UnitsInputControllerDelegate : public QObject, public IUnitsInputControllerDelegate
{
    Q_OBJECT
public:
    /// `inputType`: 0 linear, any other number angular. The provider is that of the Settings, the bounds the
    /// provider's.
    explicit UnitsInputControllerDelegate(int inputType);
    ~UnitsInputControllerDelegate() override;

    int getInputType() const override;
    int getPrecision() const override;
    /// Empty while the unit label is not shown.
    QString getUnitString() const override;
    bool shouldShowUnitLabel() const override;
    void setShowUnitLabel(bool show) override;
    double getValue() const override;
    /// A change of no more than the machine epsilon is dropped, and so is a NaN. The bounds are not asked.
    void setValue(double value) override;
    // The bounds don't clamp the value and may cross.
    double getMinimumValue() const override;
    void setMinimumValue(double minimum) override;
    double getMaximumValue() const override;
    void setMaximumValue(double maximum) override;
    QString formatValue(double value) const override;
    double parseValue(const QString& text) const override;
    bool validateValue(const QString& text) const override;
    /// The bounds become the new provider's; the value is kept as it is. The provider must not be null.
    void setDataProvider(std::unique_ptr<ILinearUnitsDataProvider> provider) override;

Q_SIGNALS:
    void valueChanged();
    void minimumValueChanged();
    void maximumValueChanged();
    void precisionChanged();
    void unitStringChanged();
    void showUnitLabelChanged();

private:
    struct Pimpl;
    std::unique_ptr<Pimpl> m_pimpl;
};
} // namespace velm
