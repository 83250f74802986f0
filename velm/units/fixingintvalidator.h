#pragma once

#include "velm/velm_export.h"

#include <QIntValidator>

#include <memory>

namespace velm {
/// Validates a field of whole numbers that mends a finished text instead of rejecting it: a number beyond a bound
/// becomes the bound, the bottom winning when the bounds cross; an empty text that may not stay empty becomes the value
/// nearest to zero. Numbers are read and written in the validator's own locale.
class VELM_EXPORT FixingIntValidator : public QIntValidator
{
    Q_OBJECT
    Q_PROPERTY(bool isEmptyAcceptable READ isEmptyAcceptable WRITE setEmptyAcceptable)
public:
    explicit FixingIntValidator(QObject* parent = nullptr);
    FixingIntValidator(int bottom, int top, QObject* parent = nullptr);
    ~FixingIntValidator() override;

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
