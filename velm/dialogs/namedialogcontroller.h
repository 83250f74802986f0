#pragma once

#include "velm/dialogs/basedialogcontroller.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace velm {
/// Asks for a name in a modal dialog of its own, which stays open until the caller's validator accepts the name.
class VELM_EXPORT NameDialogController : public BaseDialogController
{
    Q_OBJECT
    Q_PROPERTY(QString untranslatedTitle READ getUntranslatedTitle CONSTANT)
    Q_PROPERTY(QString label READ getLabel CONSTANT)
    Q_PROPERTY(QString button READ getButton CONSTANT)
    Q_PROPERTY(QString name READ getName WRITE setName NOTIFY nameChanged)
public:
    using Validator = std::function<bool(const QString&)>;

    ~NameDialogController() override;

    /// The name, or nothing when the dialog was cancelled or there is no host. The validator must not be empty; it
    /// shows by itself why it refuses a name.
    static std::optional<QString> launchDialog(const QString& untranslatedTitle, const QString& label,
                                               const QString& button, const QString& name, const Validator& validator);

    QString getName() const;
    QString getUntranslatedTitle() const;
    QString getLabel() const;
    QString getButton() const;
    /// Doesn't notify: the text field owns the text while it is edited.
    void setName(QString name);

Q_SIGNALS:
    void nameChanged();

private:
    NameDialogController(const QString& untranslatedTitle, const QString& label, const QString& button,
                         const QString& name, const Validator& validator);
    bool beforeOk() override;

    struct Pimpl;
    std::unique_ptr<Pimpl> m_pimpl;
};
} // namespace velm
