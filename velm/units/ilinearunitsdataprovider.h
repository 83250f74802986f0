#pragma once

#include "velm/velm_export.h"

#include <QString>

namespace velm {
/// Formats, parses and bounds one kind of value. The order of the operations is part of the interface.
class VELM_EXPORT ILinearUnitsDataProvider
{
public:
    virtual ~ILinearUnitsDataProvider();
    virtual int getPrecision() = 0;
    virtual QString formatValue(double value) = 0;
    /// NaN when the text is no value.
    virtual double parseValue(const QString& text) = 0;
    virtual double getMaximumValue() = 0;
    virtual double getMinimumValue() = 0;
    virtual QString getUnitString() = 0;
    virtual bool validateValue(const QString& text) = 0;
};
} // namespace velm
