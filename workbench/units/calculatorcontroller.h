#pragma once

#include "velm/dialogs/basedialogcontroller.h"

namespace workbench {
/// What the calculator's page talks to: an expression, and what it comes to while it is typed.
class CalculatorController : public velm::BaseDialogController
{
    Q_OBJECT
    Q_PROPERTY(QString expression READ expression WRITE setExpression NOTIFY changed)
    Q_PROPERTY(QString result READ result NOTIFY changed)
    Q_PROPERTY(QString problem READ problem NOTIFY changed)
public:
    /// Begins with the value, which is also what "ans" stands for. One that isn't finite begins with nothing.
    explicit CalculatorController(double value);

    QString expression() const { return m_expression; }
    void setExpression(const QString& expression);
    /// Empty while there is a problem.
    QString result() const;
    /// Why there is no result; empty when there is one.
    QString problem() const { return m_problem; }
    double value() const { return m_value; }

Q_SIGNALS:
    void changed();

private:
    bool beforeOk() override { return m_problem.isEmpty(); }

    const double m_ans;
    QString m_expression;
    QString m_problem;
    double m_value = 0.0;
};
} // namespace workbench
