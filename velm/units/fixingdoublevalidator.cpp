#include "velm/units/fixingdoublevalidator.h"

#include <QLocale>

#include <algorithm>

namespace velm {
struct FixingDoubleValidator::Pimpl
{
    bool emptyAcceptable = false;
};

FixingDoubleValidator::FixingDoubleValidator(QObject* parent) : QDoubleValidator(parent), m_pimpl(new Pimpl)
{}

FixingDoubleValidator::FixingDoubleValidator(double bottom, double top, int decimals, QObject* parent)
    : QDoubleValidator(bottom, top, decimals, parent), m_pimpl(new Pimpl)
{}

FixingDoubleValidator::~FixingDoubleValidator() = default;

bool FixingDoubleValidator::isEmptyAcceptable() const
{
    return m_pimpl->emptyAcceptable;
}

void FixingDoubleValidator::setEmptyAcceptable(bool value)
{
    m_pimpl->emptyAcceptable = value;
}

QValidator::State FixingDoubleValidator::validate(QString& input, int& pos) const
{
    if (input.isEmpty() && m_pimpl->emptyAcceptable)
        return Acceptable;
    return QDoubleValidator::validate(input, pos);
}

void FixingDoubleValidator::fixup(QString& input) const
{
    // Six significant digits whatever decimals() says: this must stay, also where it rounds a valid number.
    const auto clamped = [this](double value) {
        return locale().toString(std::max(std::min(value, top()), bottom()), 'g', 6);
    };
    if (input.isEmpty()) {
        if (!m_pimpl->emptyAcceptable)
            input = clamped(0.0);
        return;
    }
    bool isNumber = false;
    const double value = locale().toDouble(input, &isNumber);
    if (isNumber)
        input = clamped(value);
    else
        QDoubleValidator::fixup(input);
}
} // namespace velm
