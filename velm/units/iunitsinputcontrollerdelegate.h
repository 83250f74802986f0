#pragma once

#include "velm/velm_export.h"

#include <QString>

#include <memory>

namespace velm {
class ILinearUnitsDataProvider;

/// What a numeric field's controller asks for the value, its bounds and its text. The order of the operations is part
/// of the interface.
class VELM_EXPORT IUnitsInputControllerDelegate
{
public:
    virtual ~IUnitsInputControllerDelegate();
    /// 0 linear, 1 angular.
    virtual int getInputType() const = 0;
    virtual int getPrecision() const = 0;
    virtual QString getUnitString() const = 0;
    virtual bool shouldShowUnitLabel() const = 0;
    virtual void setShowUnitLabel(bool show) = 0;
    virtual double getValue() const = 0;
    virtual void setValue(double value) = 0;
    virtual double getMinimumValue() const = 0;
    virtual void setMinimumValue(double minimum) = 0;
    virtual double getMaximumValue() const = 0;
    virtual void setMaximumValue(double maximum) = 0;
    virtual QString formatValue(double value) const = 0;
    /// NaN when the text is no value.
    virtual double parseValue(const QString& text) const = 0;
    virtual bool validateValue(const QString& text) const = 0;
    virtual void setDataProvider(std::unique_ptr<ILinearUnitsDataProvider> provider) = 0;
};
} // namespace velm
