#pragma once

#include <QString>

namespace workbench {
/// What a calculation came to.
struct Calculated
{
    double value = 0.0;
    QString problem; ///< why there is no value; empty when there is one
};

/// Works out an expression of numbers in the C locale, + - * / ^, parentheses, "pi", "ans", and the functions sqrt,
/// abs, min, max, round, sin, cos, tan, asin, acos, atan (all of degrees), rad (degrees to radians) and deg. Qt's
/// JavaScript engine does the sums, but gets nothing else to see: what is in an expression is known by name.
Calculated calculate(const QString& expression, double ans);
} // namespace workbench
