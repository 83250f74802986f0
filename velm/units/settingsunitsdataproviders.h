#pragma once

#include "velm/units/ilinearunitsdataprovider.h"

namespace velm {
/// Lengths by the host's formatter, else by the current drawing's, else in the C locale, as the Settings singleton
/// says.
class VELM_EXPORT SettingsLinearUnitsDataProvider : public ILinearUnitsDataProvider
{
public:
    int getPrecision() override;
    QString formatValue(double value) override;
    double parseValue(const QString& text) override;
    double getMaximumValue() override;
    double getMinimumValue() override;
    QString getUnitString() override;
    bool validateValue(const QString& text) override;
};

/// Angles in the same three ways.
class VELM_EXPORT SettingsAngularUnitsDataProvider : public ILinearUnitsDataProvider
{
public:
    int getPrecision() override;
    QString formatValue(double value) override;
    double parseValue(const QString& text) override;
    double getMaximumValue() override;
    double getMinimumValue() override;
    QString getUnitString() override;
    bool validateValue(const QString& text) override;
};
} // namespace velm
