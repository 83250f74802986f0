#include "od/unitsparser.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <limits>
#include <numbers>

namespace {
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double radiansPerDegree = std::numbers::pi / 180.0;
constexpr double radiansPerGrad = std::numbers::pi / 200.0;

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

char plain(wchar_t character)
{
    switch (character) {
    case L'\u00b0': // degree sign
        return 'd';
    case L'\u2032': // prime
    case L'\u2019': // right single quotation mark
        return '\'';
    case L'\u2033': // double prime
    case L'\u201d': // right double quotation mark
        return '"';
    case L'\u2212': // minus sign
        return '-';
    case L'\u00a0': // no-break space
    case L'\t':
        return ' ';
    default:
        return character > 0 && character < 0x80 ? static_cast<char>(character) : '?';
    }
}
} // namespace

UnitsParser::UnitsParser(const OdString& text)
{
    for (const wchar_t character : text.wide())
        m_text += plain(character);
    m_rest = m_text;
}

double UnitsParser::length()
{
    skipBlanks();
    const double sign = takeSign();
    double value = 0.0;
    if (!mixedNumber(value))
        return notANumber;
    skipBlanks();
    if (!take('\'')) {
        take('"');
        return finished(sign * value);
    }
    skipBlanks();
    const bool dash = take('-');
    skipBlanks();
    double inches = 0.0;
    if (mixedNumber(inches)) {
        skipBlanks();
        take('"');
    } else if (dash) {
        return notANumber;
    }
    return finished(sign * std::fma(value, 12.0, inches));
}

double UnitsParser::angle(double unit)
{
    skipBlanks();
    if (m_rest.find_first_of("nNsSeEwW") == 0)
        return bearing();
    const double sign = takeSign();
    double radians = 0.0;
    return unsignedAngle(radians, unit) ? finished(sign * radians) : notANumber;
}

bool UnitsParser::take(char lowerCase)
{
    if (m_rest.empty() || (m_rest.front() != lowerCase && m_rest.front() != std::toupper(lowerCase)))
        return false;
    m_rest.remove_prefix(1);
    return true;
}

double UnitsParser::takeSign()
{
    const double sign = take('-') ? -1.0 : 1.0;
    if (sign > 0.0)
        take('+');
    skipBlanks();
    return sign;
}

void UnitsParser::skipBlanks()
{
    m_rest.remove_prefix(std::min(m_rest.find_first_not_of(' '), m_rest.size()));
}

bool UnitsParser::number(double& value)
{
    // std::from_chars would take "inf" and "nan", too.
    const std::size_t first = m_rest.starts_with('.') ? 1 : 0;
    if (first >= m_rest.size() || !isDigit(m_rest[first]))
        return false;
    const auto [end, error] = std::from_chars(m_rest.data(), m_rest.data() + m_rest.size(), value);
    if (error != std::errc())
        return false;
    m_rest.remove_prefix(static_cast<std::size_t>(end - m_rest.data()));
    return true;
}

bool UnitsParser::digits(double& value)
{
    const std::size_t count = std::min(m_rest.find_first_not_of("0123456789"), m_rest.size());
    const char* begin = m_rest.data();
    m_rest.remove_prefix(count);
    return count > 0 && std::from_chars(begin, begin + count, value).ec == std::errc();
}

bool UnitsParser::mixedNumber(double& value)
{
    const std::string_view start = m_rest;
    if (!number(value))
        return false;
    const std::string_view taken = start.substr(0, start.size() - m_rest.size());
    if (taken.find_first_not_of("0123456789") != std::string_view::npos)
        return true;
    double numerator = 0.0;
    double denominator = 0.0;
    if (take('/')) {
        numerator = value;
        value = 0.0;
        if (!digits(denominator))
            return false;
    } else {
        const std::string_view afterWhole = m_rest;
        if (!take('-'))
            skipBlanks();
        if (!digits(numerator) || !take('/') || !digits(denominator)) {
            m_rest = afterWhole;
            return true;
        }
    }
    value += numerator / denominator;
    return denominator != 0.0;
}

bool UnitsParser::unsignedAngle(double& radians, double unit)
{
    double value = 0.0;
    if (!number(value))
        return false;
    skipBlanks();
    if (take('g')) {
        radians = value * radiansPerGrad;
        return true;
    }
    if (take('r')) {
        radians = value;
        return true;
    }
    constexpr char marks[] = {'d', '\'', '"'};
    constexpr double perDegree[] = {1.0, 60.0, 3600.0};
    double degrees = 0.0;
    int next = 0;
    do {
        int mark = next;
        while (mark < 3 && !take(marks[mark]))
            ++mark;
        if (mark == 3 && next == 0) {
            radians = value * unit;
            return true;
        }
        // A last number without a mark counts the next smaller unit.
        degrees += value / perDegree[mark == 3 ? next : mark];
        next = mark + 1;
        skipBlanks();
    } while (next < 3 && number(value) && (skipBlanks(), true));
    radians = degrees * radiansPerDegree;
    return true;
}

double UnitsParser::bearing()
{
    constexpr double quarter = 90.0 * radiansPerDegree;
    const bool north = take('n');
    const bool south = !north && take('s');
    const bool east = !north && !south && take('e');
    if (!north && !south && !east)
        take('w');
    skipBlanks();
    if (m_rest.empty())
        return quarter * (east ? 0.0 : north ? 1.0 : south ? 3.0 : 2.0);
    double radians = 0.0;
    if ((!north && !south) || !unsignedAngle(radians, radiansPerDegree) || radians > quarter)
        return notANumber;
    skipBlanks();
    const bool towardsEast = take('e');
    if (!towardsEast && !take('w'))
        return notANumber;
    return finished((north ? quarter : 3.0 * quarter) + (north == towardsEast ? -radians : radians));
}

double UnitsParser::finished(double value)
{
    skipBlanks();
    return m_rest.empty() && std::isfinite(value) ? value : notANumber;
}
