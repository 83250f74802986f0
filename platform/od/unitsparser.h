#pragma once

#include "od/odstring.h"

#include <string>
#include <string_view>

/// Reads one length or one angle from a text, in all forms that OdUnitsFormatter writes and in what people type for
/// them. Numbers are those of the C locale; a parser reads once.
class UnitsParser
{
public:
    explicit UnitsParser(const OdString& text);
    UnitsParser(const UnitsParser&) = delete;
    UnitsParser& operator=(const UnitsParser&) = delete;

    /// The length in drawing units, of feet and inches in inches; NaN when the text is none.
    double length();
    /// The angle in radians; NaN when the text is none. `unit` is what a number without a unit counts, in radians.
    double angle(double unit);

private:
    /// Takes the character, of a letter also its upper case.
    bool take(char lowerCase);
    /// Takes a sign, if there is one, and gives 1 or -1.
    double takeSign();
    void skipBlanks();
    bool number(double& value);
    bool digits(double& value);
    /// "15", "1/2", "15 1/2" or "15-1/2".
    bool mixedNumber(double& value);
    bool unsignedAngle(double& radians, double unit);
    double bearing();
    /// The value, or NaN when it is infinite or something stands behind it.
    double finished(double value);

    std::string m_text;
    std::string_view m_rest;
};
