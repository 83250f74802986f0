#include "steps/commandpanelcontroller.h"

#include "velm/bridge/conversions.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/dialogs/commandlinecalls.h"
#include "velm/units/unitsinputcontroller.h"

#include <QLocale>

namespace workbench {
namespace {
QStringList keywords(const CommandStep& step, bool enabledOnly)
{
    QStringList result;
    for (const CommandStep::Option& option : step.options)
        if (option.enabled || !enabledOnly)
            result << velm::toQt(option.keyword);
    return result;
}

/// All digits, whatever the field shows of them.
QString text(const velm::UnitsInputController& value)
{
    return QString::number(value.getValue(), 'g', QLocale::FloatingPointShortest);
}
} // namespace

CommandPanelController::CommandPanelController(const SteppedCommand& command)
    : m_name(velm::toQt(command.name())), m_title(velm::getUIFullUrl("Workbench/CommandPanelTitle.qml")),
      m_step(command.step()), m_x(addLength()), m_y(addLength()), m_length(addLength())
{}

CommandPanelController::~CommandPanelController() = default;

velm::UnitsInputController* CommandPanelController::addLength()
{
    constexpr double largest = 1e9;
    auto* length = new velm::UnitsInputController(this);
    length->setMinimumValue(-largest);
    length->setMaximumValue(largest);
    return length;
}

QString CommandPanelController::prompt() const
{
    return velm::toQt(m_step.prompt);
}

QStringList CommandPanelController::options() const
{
    return keywords(m_step, false);
}

QStringList CommandPanelController::enabledOptions() const
{
    return keywords(m_step, true);
}

QObject* CommandPanelController::x() const
{
    return m_x;
}

QObject* CommandPanelController::y() const
{
    return m_y;
}

QObject* CommandPanelController::length() const
{
    return m_length;
}

void CommandPanelController::show(const CommandStep& step)
{
    m_step = step;
    resetValues();
    Q_EMIT stepChanged();
}

void CommandPanelController::setRelative(bool relative)
{
    if (relative == m_isRelative)
        return;
    m_isRelative = relative;
    resetValues();
    Q_EMIT relativeChanged();
}

void CommandPanelController::resetValues()
{
    const OdGePoint3d start = m_isRelative ? OdGePoint3d() : m_step.base.value_or(OdGePoint3d());
    m_x->setValue(start.x);
    m_y->setValue(start.y);
    m_length->setValue(0.0);
}

void CommandPanelController::enterValues()
{
    const QString from = m_isRelative && hasBase() ? QStringLiteral("@") : QString();
    const QString value = asksForPoint() ? from + text(*m_x) + QLatin1Char(',') + text(*m_y) : text(*m_length);
    velm::invokeCommandLineEnterValues(this, {velm::odFromQt(value)});
}

void CommandPanelController::chooseOption(const QString& keyword)
{
    velm::invokeCommandLineOption(this, velm::odFromQt(keyword));
}

void CommandPanelController::accept()
{
    velm::acceptCommandLine(this);
}

void CommandPanelController::pick()
{
    if (onPickWanted)
        onPickWanted();
}
} // namespace workbench
