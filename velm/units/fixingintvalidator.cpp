#include "velm/units/fixingintvalidator.h"

#include <QLocale>

#include <algorithm>

namespace velm {
struct FixingIntValidator::Pimpl
{
    bool emptyAcceptable = false;
};

FixingIntValidator::FixingIntValidator(QObject* parent) : QIntValidator(parent), m_pimpl(new Pimpl)
{}

FixingIntValidator::FixingIntValidator(int bottom, int top, QObject* parent)
    : QIntValidator(bottom, top, parent), m_pimpl(new Pimpl)
{}

FixingIntValidator::~FixingIntValidator() = default;

bool FixingIntValidator::isEmptyAcceptable() const
{
    return m_pimpl->emptyAcceptable;
}

void FixingIntValidator::setEmptyAcceptable(bool value)
{
    m_pimpl->emptyAcceptable = value;
}

QValidator::State FixingIntValidator::validate(QString& input, int& pos) const
{
    if (input.isEmpty() && m_pimpl->emptyAcceptable)
        return Acceptable;
    return QIntValidator::validate(input, pos);
}

void FixingIntValidator::fixup(QString& input) const
{
    const auto clamped = [this](qlonglong value) {
        return std::max<qlonglong>(std::min<qlonglong>(value, top()), bottom());
    };
    if (input.isEmpty()) {
        if (!m_pimpl->emptyAcceptable)
            input = locale().toString(clamped(0));
        return;
    }
    bool isNumber = false;
    // Wide enough for what is far beyond the bounds.
    const qlonglong value = locale().toLongLong(input, &isNumber);
    if (isNumber)
        input = locale().toString(clamped(value));
    else
        QIntValidator::fixup(input);
}
} // namespace velm
