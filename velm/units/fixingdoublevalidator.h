#pragma once

#include "velm/velm_export.h"

#include <QDoubleValidator>

#include <memory>

namespace velm {
/// Validates a field of real numbers that mends a finished text instead of rejecting it: a number beyond a bound
/// becomes the bound, the bottom winning when the bounds cross; an empty text that may not stay empty becomes the value
/// nearest to zero. Numbers are read and written in the validator's own locale.
class VELM_EXPORT FixingDoubleValidator : public QDoubleValidator
{
    Q_OBJECT
    Q_PROPERTY(bool isEmptyAcceptable READ isEmptyAcceptable WRITE setEmptyAcceptable)
public:
    explicit FixingDoubleValidator(QObject* parent = nullptr);
    FixingDoubleValidator(double bottom, double top, int decimals, QObject* parent = nullptr);
    ~FixingDoubleValidator() override;

    QValidator::State validate(QString& input, int& pos) const override;
    void fixup(QString& input) const override;

public Q_SLOTS:
    /// False at first.
    bool isEmptyAcceptable() const;
    void setEmptyAcceptable(bool value);

private:
    struct Pimpl;
    std::unique_ptr<Pimpl> m_pimpl;
};
} // namespace velm
