#include "units/calculatorcontroller.h"

#include "units/calculation.h"

#include <QLocale>

#include <cmath>

namespace workbench {
CalculatorController::CalculatorController(double value) : m_ans(value)
{
    setExpression(std::isfinite(value) ? QString::number(value, 'g', QLocale::FloatingPointShortest) : QString());
}

void CalculatorController::setExpression(const QString& expression)
{
    m_expression = expression;
    const Calculated calculated = calculate(expression, m_ans);
    m_problem = calculated.problem;
    m_value = calculated.value;
    Q_EMIT changed();
}

QString CalculatorController::result() const
{
    return m_problem.isEmpty() ? QString::number(m_value, 'g', 12) : QString();
}
} // namespace workbench
