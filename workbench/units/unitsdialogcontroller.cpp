#include "units/unitsdialogcontroller.h"

#include "velm/bridge/conversions.h"

#include <functional>

namespace workbench {
namespace {
constexpr double sampleLength = 41.28125;
constexpr double sampleAngle = 0.7923; // radians, 45 degrees and a bit
constexpr int precisions = 9;

QString lengthText(const OdUnits& units, double value)
{
    OdUnitsFormatter formatter;
    formatter.setUnits(units);
    return velm::toQt(formatter.formatLinear(value));
}

QString angleText(const OdUnits& units, double radians)
{
    OdUnitsFormatter formatter;
    formatter.setUnits(units);
    return velm::toQt(formatter.formatAngle(radians));
}

/// What is written of zero tells what a precision shows; of the fractional kinds, the smallest fraction does.
QStringList textsOf(OdUnits units, int OdUnits::*precision, const std::function<QString(const OdUnits&)>& text)
{
    QStringList result;
    for (units.*precision = 0; units.*precision < precisions; ++(units.*precision))
        result += text(units);
    return result;
}
} // namespace

QStringList UnitsDialogController::linearKinds()
{
    return {tr("Scientific"), tr("Decimal"), tr("Engineering"), tr("Architectural"), tr("Fractional")};
}

QStringList UnitsDialogController::angularKinds()
{
    return {tr("Decimal degrees"), tr("Degrees, minutes, seconds"), tr("Grads"), tr("Radians"), tr("Surveyor's units")};
}

void UnitsDialogController::setLinearKind(int kind)
{
    m_units.linearKind = static_cast<OdUnits::LinearKind>(OdUnits::kScientific + kind);
    Q_EMIT changed();
}

void UnitsDialogController::setLinearPrecision(int precision)
{
    m_units.linearPrecision = precision;
    Q_EMIT changed();
}

void UnitsDialogController::setAngularKind(int kind)
{
    m_units.angularKind = static_cast<OdUnits::AngularKind>(kind);
    Q_EMIT changed();
}

void UnitsDialogController::setAngularPrecision(int precision)
{
    m_units.angularPrecision = precision;
    Q_EMIT changed();
}

QString UnitsDialogController::linearSample() const
{
    return lengthText(m_units, sampleLength);
}

QString UnitsDialogController::angularSample() const
{
    return angleText(m_units, sampleAngle);
}

QStringList UnitsDialogController::linearPrecisions() const
{
    const bool fractional = m_units.linearKind == OdUnits::kArchitectural || m_units.linearKind == OdUnits::kFractional;
    return textsOf(m_units, &OdUnits::linearPrecision, [fractional](const OdUnits& units) {
        return lengthText(units, fractional ? 1.0 / (1 << units.linearPrecision) : 0.0);
    });
}

QStringList UnitsDialogController::angularPrecisions() const
{
    return textsOf(m_units, &OdUnits::angularPrecision, [](const OdUnits& units) {
        // Bearings write a quarter turn as a letter.
        return angleText(units, units.angularKind == OdUnits::kSurveyors ? sampleAngle : 0.0);
    });
}
} // namespace workbench
