#include "units/calculation.h"

#include <QCoreApplication>
#include <QJSEngine>

#include <algorithm>
#include <cmath>

namespace workbench {
namespace {
constexpr int mostCharacters = 1000;
constexpr int deepestNesting = 100;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Calculation)
};

struct Function
{
    const char* name;
    int arguments; ///< 0: one or more
    const char* script;
};

constexpr Function functions[] = {
    {"sqrt", 1, "Math.sqrt(%1)"},
    {"abs", 1, "Math.abs(%1)"},
    {"round", 1, "Math.round(%1)"},
    {"min", 0, "Math.min(%1)"},
    {"max", 0, "Math.max(%1)"},
    {"sin", 1, "Math.sin((%1)*Math.PI/180)"},
    {"cos", 1, "Math.cos((%1)*Math.PI/180)"},
    {"tan", 1, "Math.tan((%1)*Math.PI/180)"},
    {"asin", 1, "(Math.asin(%1)*180/Math.PI)"},
    {"acos", 1, "(Math.acos(%1)*180/Math.PI)"},
    {"atan", 1, "(Math.atan(%1)*180/Math.PI)"},
    {"rad", 1, "((%1)*Math.PI/180)"},
    {"deg", 1, "((%1)*180/Math.PI)"},
};

struct Problem
{
    QString text;
};

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

bool isLetter(QChar character)
{
    return (character >= u'a' && character <= u'z') || (character >= u'A' && character <= u'Z');
}

QString literal(double value)
{
    return QLatin1Char('(') + QString::number(value, 'g', 17) + QLatin1Char(')');
}

/// Writes an expression anew as a script in which every operation stands in parentheses.
class Translator
{
public:
    Translator(const QString& expression, double ans) : m_text(expression), m_ans(ans) {}

    QString script()
    {
        QString result = sum();
        if (m_at < m_text.size())
            fail();
        return result;
    }

private:
    QChar next()
    {
        while (m_at < m_text.size() && m_text[m_at].isSpace())
            ++m_at;
        return m_at < m_text.size() ? m_text[m_at] : QChar();
    }

    bool take(char16_t character)
    {
        if (next() != character)
            return false;
        ++m_at;
        return true;
    }

    [[noreturn]] void fail()
    {
        const QChar character = next();
        if (character.isNull() && m_at >= m_text.size())
            throw Problem{Texts::tr("Something is missing at the end.")};
        throw Problem{Texts::tr("\"%1\" at place %2 isn't understood.").arg(character).arg(m_at + 1)};
    }

    QString sum()
    {
        if (++m_depth > deepestNesting)
            throw Problem{Texts::tr("The expression is nested too deeply.")};
        QString result = product();
        for (;;) {
            if (take(u'+'))
                result = QStringLiteral("(%1+%2)").arg(result, product());
            else if (take(u'-'))
                result = QStringLiteral("(%1-%2)").arg(result, product());
            else
                break;
        }
        --m_depth;
        return result;
    }

    QString product()
    {
        QString result = signedPower();
        for (;;) {
            if (take(u'*'))
                result = QStringLiteral("(%1*%2)").arg(result, signedPower());
            else if (take(u'/'))
                result = QStringLiteral("(%1/%2)").arg(result, signedPower());
            else
                return result;
        }
    }

    /// A power binds more tightly than the sign before it, and from right to left.
    QString signedPower()
    {
        if (++m_depth > deepestNesting)
            throw Problem{Texts::tr("The expression is nested too deeply.")};
        QString result;
        if (take(u'-')) {
            result = QStringLiteral("(-%1)").arg(signedPower());
        } else if (take(u'+')) {
            result = signedPower();
        } else {
            result = operand();
            if (take(u'^'))
                result = QStringLiteral("Math.pow(%1,%2)").arg(result, signedPower());
        }
        --m_depth;
        return result;
    }

    QString operand()
    {
        const QChar first = next();
        if (take(u'(')) {
            const QString inner = sum();
            if (!take(u')'))
                fail();
            return inner;
        }
        if (isDigit(first) || first == u'.')
            return number();
        if (isLetter(first))
            return named();
        fail();
    }

    QString number()
    {
        const qsizetype start = m_at;
        skipDigits();
        if (m_at < m_text.size() && m_text[m_at] == u'.') {
            ++m_at;
            skipDigits();
        }
        // Without digits behind it an "e" is none of the number's.
        const qsizetype mantissaEnd = m_at;
        if (m_at < m_text.size() && m_text[m_at].toLower() == u'e') {
            ++m_at;
            if (m_at < m_text.size() && (m_text[m_at] == u'+' || m_text[m_at] == u'-'))
                ++m_at;
            const qsizetype exponent = m_at;
            skipDigits();
            if (m_at == exponent)
                m_at = mantissaEnd;
        }
        bool isNumber = false;
        const double value = m_text.mid(start, m_at - start).toDouble(&isNumber);
        if (!isNumber)
            throw Problem{Texts::tr("\"%1\" is no number.").arg(m_text.mid(start, m_at - start).left(20))};
        return literal(value);
    }

    void skipDigits()
    {
        while (m_at < m_text.size() && isDigit(m_text[m_at]))
            ++m_at;
    }

    QString named()
    {
        const qsizetype start = m_at;
        while (m_at < m_text.size() && (isLetter(m_text[m_at]) || isDigit(m_text[m_at])))
            ++m_at;
        const QString name = m_text.mid(start, m_at - start).toLower();
        if (name == QLatin1String("pi"))
            return QStringLiteral("Math.PI");
        if (name == QLatin1String("ans"))
            return literal(m_ans);
        const auto* function = std::ranges::find_if(
            functions, [&](const Function& candidate) { return name == QLatin1String(candidate.name); });
        if (function == std::end(functions))
            throw Problem{Texts::tr("The calculator doesn't know \"%1\".").arg(name.left(20))};
        if (!take(u'('))
            throw Problem{Texts::tr("\"%1\" is followed by a parenthesis.").arg(name)};
        QString arguments = sum();
        int count = 1;
        for (; take(u','); ++count)
            arguments += QLatin1Char(',') + sum();
        if (!take(u')'))
            fail();
        if (function->arguments != 0 && count != function->arguments)
            throw Problem{Texts::tr("\"%1\" takes one value.").arg(name)};
        return QString::fromLatin1(function->script).arg(arguments);
    }

    const QString m_text;
    const double m_ans;
    qsizetype m_at = 0;
    int m_depth = 0;
};
} // namespace

Calculated calculate(const QString& expression, double ans)
{
    if (expression.trimmed().isEmpty())
        return {0.0, Texts::tr("Type an expression.")};
    if (expression.size() > mostCharacters)
        return {0.0, Texts::tr("The expression is too long.")};
    try {
        QJSEngine engine;
        const double value = engine.evaluate(Translator(expression, ans).script()).toNumber();
        if (!std::isfinite(value))
            return {0.0, Texts::tr("The result is no finite number.")};
        return {value, {}};
    } catch (const Problem& problem) {
        return {0.0, problem.text};
    }
}
} // namespace workbench
