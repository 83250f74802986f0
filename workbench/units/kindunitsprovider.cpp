#include "units/kindunitsprovider.h"

#include "velm/bridge/conversions.h"
#include "velm/units/settings.h"

#include <cmath>

namespace workbench {
KindUnitsProvider::KindUnitsProvider(OdUnits::LinearKind kind) : m_isAngular(false)
{
    m_units.linearKind = kind;
}

KindUnitsProvider::KindUnitsProvider(OdUnits::AngularKind kind) : m_isAngular(true)
{
    m_units.angularKind = kind;
}

int KindUnitsProvider::getPrecision()
{
    const velm::Settings* settings = velm::Settings::instance();
    return m_isAngular ? settings->getAngularUnitPrecision() : settings->getLinearUnitPrecision();
}

OdUnitsFormatter KindUnitsProvider::formatter()
{
    (m_isAngular ? m_units.angularPrecision : m_units.linearPrecision) = getPrecision();
    OdUnitsFormatter result;
    result.setUnits(m_units);
    return result;
}

QString KindUnitsProvider::formatValue(double value)
{
    return velm::toQt(m_isAngular ? formatter().formatAngle(value) : formatter().formatLinear(value));
}

double KindUnitsProvider::parseValue(const QString& text)
{
    const OdString trimmed = velm::odFromQt(text.trimmed());
    return m_isAngular ? formatter().unformatAngle(trimmed) : formatter().unformatLinear(trimmed);
}

bool KindUnitsProvider::validateValue(const QString& text)
{
    return !std::isnan(parseValue(text));
}
} // namespace workbench
