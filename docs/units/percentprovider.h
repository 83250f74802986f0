#pragma once
#include "velm/units/ilinearunitsdataprovider.h"

#include <QLocale>

#include <limits>

/// Shows 0.25 as "25".
class PercentProvider : public velm::ILinearUnitsDataProvider
{
public:
    int getPrecision() override { return 0; }
    QString formatValue(double value) override { return QLocale::c().toString(value * 100, 'f', 0); }
    double parseValue(const QString& text) override
    {
        bool isNumber = false;
        const double percent = QLocale::c().toDouble(text.trimmed(), &isNumber);
        return isNumber ? percent / 100 : std::numeric_limits<double>::quiet_NaN();
    }
    double getMaximumValue() override { return 1; }
    double getMinimumValue() override { return 0; }
    QString getUnitString() override { return QStringLiteral("%"); }
    bool validateValue(const QString& text) override { return parseValue(text) == parseValue(text); }
};
