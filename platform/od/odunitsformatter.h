#pragma once

#include "od/odstring.h"

/// How a drawing shows lengths and angles.
struct OdUnits
{
    enum LinearKind
    {
        kScientific = 1,
        kDecimal = 2,
        kEngineering = 3,
        kArchitectural = 4,
        kFractional = 5,
    };
    enum AngularKind
    {
        kDecimalDegrees = 0,
        kDegreesMinutesSeconds = 1,
        kGrads = 2,
        kRadians = 3,
        kSurveyors = 4,
    };

    LinearKind linearKind = kDecimal;
    int linearPrecision = 4; ///< decimals 0 to 8; of the fractional kinds the power of two of the smallest denominator
    AngularKind angularKind = kDecimalDegrees;
    int angularPrecision = 0; ///< decimals 0 to 8; for degrees, minutes and seconds: 0 degrees, 1 to 2 with minutes, 3
                              ///< to 4 with seconds, above that decimals of a second

    bool operator==(const OdUnits&) const = default;
};

/// Turns lengths (drawing units; inches for the feet kinds) and angles (radians) into the drawing's text and back.
/// Every text that a format gives parses to the value that it shows.
class PLATFORM_EXPORT OdUnitsFormatter
{
public:
    const OdUnits& units() const { return m_units; }
    void setUnits(const OdUnits& units) { m_units = units; }

    OdString formatLinear(double value) const;
    /// NaN when the text is no length.
    double unformatLinear(const OdString& text) const;
    OdString formatAngle(double radians) const;
    /// NaN when the text is no angle.
    double unformatAngle(const OdString& text) const;

private:
    OdUnits m_units;
};
