#include "velm/units/settingsunitsdataproviders.h"

#include "od/oddbdatabase.h"
#include "velm/bridge/conversions.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/units/iunitformatter.h"
#include "velm/units/settings.h"

#include <QLocale>

#include <cmath>
#include <limits>

namespace velm {
namespace {
constexpr double noValue = std::numeric_limits<double>::quiet_NaN();
constexpr double unparsed = std::numeric_limits<double>::infinity();
constexpr double largestValue = 10000.0;

/// The unit is shown beside the value, so the formatter is to leave it out.
constexpr std::uint16_t unitShownBeside = 0x1000;

double finiteOrNoValue(double value)
{
    return std::isfinite(value) ? value : noValue;
}

double parseInCLocale(QString text)
{
    text = text.trimmed();
    // A number with a unit behind a blank reads as the number alone.
    if (const qsizetype blank = text.indexOf(' '); blank >= 1)
        text.truncate(blank);
    bool parsed = false;
    const double value = QLocale::c().toDouble(text, &parsed);
    return parsed ? value : noValue;
}

std::uint16_t angularFlags()
{
    switch (Settings::instance()->getAngularUnitType()) {
    case 1:
    case 4:
        return 0;
    default:
        return unitShownBeside;
    }
}
} // namespace

int SettingsLinearUnitsDataProvider::getPrecision()
{
    return Settings::instance()->getLinearUnitPrecision();
}

QString SettingsLinearUnitsDataProvider::formatValue(double value)
{
    if (IUnitFormatter* formatter = getUnitFormatter(value))
        return toQt(formatter->formatLinear());
    if (const OdDbDatabase* database = currentDatabase())
        return toQt(database->formatter().formatLinear(value));
    return QLocale::c().toString(value, 'f', getPrecision());
}

double SettingsLinearUnitsDataProvider::parseValue(const QString& text)
{
    if (IUnitFormatter* formatter = getUnitFormatter(0.0)) {
        double result = unparsed;
        return formatter->parseLinear(&result, wxFromQt(text.trimmed())) ? finiteOrNoValue(result) : noValue;
    }
    if (const OdDbDatabase* database = currentDatabase())
        return finiteOrNoValue(database->formatter().unformatLinear(odFromQt(text.trimmed())));
    return parseInCLocale(text);
}

double SettingsLinearUnitsDataProvider::getMaximumValue()
{
    return largestValue;
}

double SettingsLinearUnitsDataProvider::getMinimumValue()
{
    return -largestValue;
}

QString SettingsLinearUnitsDataProvider::getUnitString()
{
    return Settings::instance()->getLinearUnitString();
}

bool SettingsLinearUnitsDataProvider::validateValue(const QString& text)
{
    return !std::isnan(parseValue(text));
}

int SettingsAngularUnitsDataProvider::getPrecision()
{
    return Settings::instance()->getAngularUnitPrecision();
}

QString SettingsAngularUnitsDataProvider::formatValue(double value)
{
    if (IUnitFormatter* formatter = getUnitFormatter(value))
        return toQt(formatter->formatAngular(nullptr, angularFlags()));
    if (const OdDbDatabase* database = currentDatabase())
        return toQt(database->formatter().formatAngle(value));
    return QLocale::c().toString(value, 'f', getPrecision());
}

double SettingsAngularUnitsDataProvider::parseValue(const QString& text)
{
    if (IUnitFormatter* formatter = getUnitFormatter(0.0)) {
        // The return value says nothing for angles: a text that is none leaves the result as it was.
        double result = unparsed;
        formatter->parseAngular(&result, wxFromQt(text.trimmed()), nullptr, 0);
        return finiteOrNoValue(result);
    }
    if (const OdDbDatabase* database = currentDatabase())
        return finiteOrNoValue(database->formatter().unformatAngle(odFromQt(text.trimmed())));
    return parseInCLocale(text);
}

double SettingsAngularUnitsDataProvider::getMaximumValue()
{
    return largestValue;
}

double SettingsAngularUnitsDataProvider::getMinimumValue()
{
    return -largestValue;
}

QString SettingsAngularUnitsDataProvider::getUnitString()
{
    return Settings::instance()->getAngularUnitString();
}

bool SettingsAngularUnitsDataProvider::validateValue(const QString& text)
{
    return !std::isnan(parseValue(text));
}
} // namespace velm
