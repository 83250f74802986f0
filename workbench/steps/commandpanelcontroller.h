#pragma once

#include "steps/steppedcommand.h"
#include "velm/dialogs/commandcontextdialogcontroller.h"
#include "velm/dialogs/icommandcontextpaneltitlecontroller.h"

#include <QStringList>
#include <QUrl>

namespace velm {
class UnitsInputController;
}

namespace workbench {
/// What the page beside a running command talks to: the present step and its options. Whatever the page tells goes to
/// the command line, as if it had been typed there.
class CommandPanelController : public velm::CommandContextDialogController
{
    Q_OBJECT
    Q_PROPERTY(QString name READ name CONSTANT)
    Q_PROPERTY(QUrl titleSource READ titleSource CONSTANT)
    Q_PROPERTY(QString prompt READ prompt NOTIFY stepChanged)
    Q_PROPERTY(bool asksForPoint READ asksForPoint NOTIFY stepChanged)
    Q_PROPERTY(bool hasBase READ hasBase NOTIFY stepChanged)
    /// The keywords of all options.
    Q_PROPERTY(QStringList options READ options CONSTANT)
    Q_PROPERTY(QStringList enabledOptions READ enabledOptions NOTIFY stepChanged)
    /// Whether a point is told from the last one.
    Q_PROPERTY(bool relative READ isRelative WRITE setRelative NOTIFY relativeChanged)
    Q_PROPERTY(QObject* x READ x CONSTANT)
    Q_PROPERTY(QObject* y READ y CONSTANT)
    Q_PROPERTY(QObject* length READ length CONSTANT)
public:
    explicit CommandPanelController(const SteppedCommand& command);
    ~CommandPanelController() override;

    QString name() const { return m_name; }
    QUrl titleSource() const { return m_title.getSourceUrl(); }
    QString prompt() const;
    bool asksForPoint() const { return m_step.kind == CommandStep::Kind::Point; }
    bool hasBase() const { return m_step.base.has_value(); }
    QStringList options() const;
    QStringList enabledOptions() const;
    bool isRelative() const { return m_isRelative; }
    void setRelative(bool relative);
    QObject* x() const;
    QObject* y() const;
    QObject* length() const;

    /// The values begin anew.
    void show(const CommandStep& step);

    std::function<void()> onPickWanted;

public Q_SLOTS:
    /// The point or the length, whichever is asked for.
    void enterValues();
    void chooseOption(const QString& keyword);
    /// Ends the command as Enter does.
    void accept();
    /// The person wants to show it in the drawing.
    void pick();

Q_SIGNALS:
    void stepChanged();
    void relativeChanged();

private:
    velm::UnitsInputController* addLength();
    void resetValues();

    QString m_name;
    velm::ICommandContextPanelTitleController m_title;
    CommandStep m_step;
    bool m_isRelative = false;
    velm::UnitsInputController* m_x;      // owned as a child
    velm::UnitsInputController* m_y;      // owned as a child
    velm::UnitsInputController* m_length; // owned as a child
};
} // namespace workbench
