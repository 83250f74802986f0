#include "od/odunitsformatter.h"

#include "od/unitsparser.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numbers>

namespace {
constexpr double degreesPerRadian = 180.0 / std::numbers::pi;
constexpr double gradsPerRadian = 200.0 / std::numbers::pi;
constexpr double inchesPerFoot = 12.0;
constexpr double mostFeet = 9007199254740992.0; // above it a double skips feet, so inches are written alone
constexpr char degreeSign[] = "\xc2\xb0";       // UTF-8

std::string numberText(double value, std::chars_format format, int precision)
{
    char buffer[400]; // the largest double has 309 digits
    const auto end = std::to_chars(std::begin(buffer), std::end(buffer), value, format, precision).ptr;
    return std::string(buffer, end);
}

std::string fixed(double value, int precision)
{
    return numberText(value, std::chars_format::fixed, precision);
}

std::string scientific(double value, int precision)
{
    std::string text = numberText(value, std::chars_format::scientific, precision);
    // Rounded up, the largest numbers would be none: they are written in full.
    if (double read = 0.0; std::from_chars(text.data(), text.data() + text.size(), read).ec != std::errc())
        text = numberText(value, std::chars_format::scientific, 16);
    std::ranges::replace(text, 'e', 'E');
    return text;
}

/// No "-0.00" for what rounds to zero.
std::string withSign(bool negative, const std::string& magnitude)
{
    const auto mantissaEnd = std::min(magnitude.find('E'), magnitude.size());
    const bool shown = magnitude.find_first_of("123456789") < mantissaEnd;
    return negative && shown ? '-' + magnitude : magnitude;
}

/// A value as "15", "1/2" or "15 1/2", to the nearest 1 / 2^power.
struct Mixed
{
    double whole;
    int numerator;
    int denominator;

    Mixed(double value, int power) : whole(std::floor(value)), denominator(1 << power)
    {
        numerator = static_cast<int>(std::lround((value - whole) * denominator));
        if (numerator == denominator) {
            numerator = 0;
            whole += 1.0;
        }
        while (numerator != 0 && numerator % 2 == 0) {
            numerator /= 2;
            denominator /= 2;
        }
    }

    std::string text(bool keepZero) const
    {
        const std::string fraction = std::to_string(numerator) + '/' + std::to_string(denominator);
        if (numerator == 0)
            return fixed(whole, 0);
        return whole == 0.0 && !keepZero ? fraction : fixed(whole, 0) + ' ' + fraction;
    }
};

std::string feetAndInches(double feet, const std::string& inches)
{
    return feet == 0.0 ? inches + '"' : fixed(feet, 0) + "'-" + inches + '"';
}

std::string engineering(double value, int precision)
{
    if (value > mostFeet)
        return fixed(value, 0) + '"';
    const double rest = std::fmod(value, inchesPerFoot);
    double feet = (value - rest) / inchesPerFoot;
    std::string inches = fixed(rest, precision);
    if (inches.starts_with("12")) {
        inches = fixed(0.0, precision);
        feet += 1.0;
    }
    return feetAndInches(feet, inches);
}

std::string architectural(double value, int precision)
{
    if (value > mostFeet)
        return fixed(value, 0) + '"';
    const double rest = std::fmod(value, inchesPerFoot);
    double feet = (value - rest) / inchesPerFoot;
    Mixed inches(rest, precision);
    if (inches.whole == inchesPerFoot) {
        inches.whole = 0.0;
        feet += 1.0;
    }
    return feetAndInches(feet, inches.text(feet != 0.0));
}

/// An angle in whole degrees and the count of the smallest units that the precision shows, so that rounding carries.
struct Sexagesimal
{
    double degrees;
    int units;
    int unitsPerDegree = 1;
    int secondDecimals = 0;
    bool showsMinutes;
    bool showsSeconds;

    Sexagesimal(double value, int precision)
        : degrees(std::floor(value)), showsMinutes(precision >= 1), showsSeconds(precision >= 3)
    {
        if (showsMinutes)
            unitsPerDegree *= 60;
        if (showsSeconds)
            unitsPerDegree *= 60;
        for (; secondDecimals < precision - 4; ++secondDecimals)
            unitsPerDegree *= 10;
        units = static_cast<int>(std::lround((value - degrees) * unitsPerDegree));
        if (units == unitsPerDegree) {
            units = 0;
            degrees += 1.0;
        }
    }

    std::string text() const
    {
        std::string result = fixed(degrees, 0) + 'd';
        const int unitsPerMinute = unitsPerDegree / 60;
        if (showsMinutes)
            result += std::to_string(units / unitsPerMinute) + '\'';
        if (showsSeconds) {
            const double unitsPerSecond = unitsPerMinute / 60.0;
            result += fixed(units % unitsPerMinute / unitsPerSecond, secondDecimals) + '"';
        }
        return result;
    }

    Sexagesimal supplementTo(double total) const
    {
        Sexagesimal result = *this;
        result.degrees = total - degrees - (units != 0 ? 1.0 : 0.0);
        result.units = units != 0 ? unitsPerDegree - units : 0;
        return result;
    }
};

/// The angle as a bearing: so many degrees from north or south towards east or west.
std::string surveyors(double degrees, int precision)
{
    degrees = std::fmod(degrees, 360.0);
    Sexagesimal angle(degrees < 0.0 ? degrees + 360.0 : degrees, precision);
    if (angle.degrees >= 360.0)
        angle.degrees -= 360.0;
    const int quadrant = static_cast<int>(angle.degrees / 90.0);
    if (angle.units == 0 && angle.degrees == quadrant * 90.0)
        return std::string(1, "ENWS"[quadrant]);
    switch (quadrant) {
    case 0:
        return "N " + angle.supplementTo(90.0).text() + " E";
    case 1:
        angle.degrees -= 90.0;
        return "N " + angle.text() + " W";
    case 2:
        return "S " + angle.supplementTo(270.0).text() + " W";
    default:
        angle.degrees -= 270.0;
        return "S " + angle.text() + " E";
    }
}
} // namespace

OdString OdUnitsFormatter::formatLinear(double value) const
{
    if (!std::isfinite(value))
        return OdString();
    const int precision = std::clamp(m_units.linearPrecision, 0, 8);
    const double magnitude = std::abs(value);
    std::string text;
    switch (m_units.linearKind) {
    case OdUnits::kScientific:
        text = scientific(magnitude, precision);
        break;
    case OdUnits::kEngineering:
        text = engineering(magnitude, precision);
        break;
    case OdUnits::kArchitectural:
        text = architectural(magnitude, precision);
        break;
    case OdUnits::kFractional:
        text = Mixed(magnitude, precision).text(false);
        break;
    case OdUnits::kDecimal:
        text = fixed(magnitude, precision);
        break;
    }
    return OdString(withSign(value < 0.0, text).c_str());
}

double OdUnitsFormatter::unformatLinear(const OdString& text) const
{
    return UnitsParser(text).length();
}

OdString OdUnitsFormatter::formatAngle(double radians) const
{
    const double degrees = radians * degreesPerRadian;
    if (!std::isfinite(degrees))
        return OdString();
    const int precision = std::clamp(m_units.angularPrecision, 0, 8);
    std::string text;
    switch (m_units.angularKind) {
    case OdUnits::kDecimalDegrees:
        text = fixed(std::abs(degrees), precision) + degreeSign;
        break;
    case OdUnits::kDegreesMinutesSeconds:
        text = Sexagesimal(std::abs(degrees), precision).text();
        break;
    case OdUnits::kGrads:
        text = fixed(std::abs(radians) * gradsPerRadian, precision) + 'g';
        break;
    case OdUnits::kRadians:
        text = fixed(std::abs(radians), precision) + 'r';
        break;
    case OdUnits::kSurveyors:
        return OdString(surveyors(degrees, precision).c_str());
    }
    return OdString(withSign(radians < 0.0, text).c_str());
}

double OdUnitsFormatter::unformatAngle(const OdString& text) const
{
    double unit = 1.0 / degreesPerRadian;
    if (m_units.angularKind == OdUnits::kGrads)
        unit = 1.0 / gradsPerRadian;
    else if (m_units.angularKind == OdUnits::kRadians)
        unit = 1.0;
    return UnitsParser(text).angle(unit);
}
