#pragma once

#include "house.h"
#include "steps/circlecommand.h"
#include "steps/commandpanelcontroller.h"
#include "steps/commandrun.h"
#include "steps/linecommand.h"
#include "support/fakehost.h"
#include "support/scopes.h"
#include "velm/bridge/conversions.h"

#include <QPointer>
#include <QtTest>

namespace workbench {
/// Keeps an eye on the controller of the panel.
class PanelHost : public velmtest::FakeGuiController
{
public:
    std::unique_ptr<velm::IHostDialog> createDialog(const QUrl& page, velm::BaseDialogController* controller,
                                                    wxWindow* parent, const velm::DialogOptions& options,
                                                    void* context) override
    {
        panel = qobject_cast<CommandPanelController*>(controller);
        dialogs = {{}};
        return FakeGuiController::createDialog(page, controller, parent, options, context);
    }

    QPointer<CommandPanelController> panel;
};

/// The house with nothing in the model, and what runs commands in it.
class CommandHouse : public House
{
public:
    CommandHouse()
    {
        for (OdDbEntity* entity : std::initializer_list<OdDbEntity*>{wall, circle, insert, text})
            entity->erase();
        run.log = [this](const wxString& line) { log << velm::toQt(line); };
        run.onDrawingChanged = [this] { ++changes; };
        run.onEnded = [this] { ends << (host.panel ? "with the panel" : "too late"); };
    }

    static velm::ExternalFunctions functions(CommandRun& run)
    {
        velm::ExternalFunctions result;
        result.processEnter = [&run] { run.enter(); };
        result.processEscape = [&run] { run.escape(); };
        result.processCommand = [&run](const OdString& line) { run.takeLine(line.c_str()); };
        return result;
    }
    template <typename Command>
    void start(const wxString& line = {})
    {
        run.start(std::make_unique<Command>(*database));
        if (!line.empty())
            run.takeLine(line);
    }
    void start(const QString& name, const QString& line)
    {
        if (name == "LINE")
            start<LineCommand>(velm::wxFromQt(line));
        else
            start<CircleCommand>(velm::wxFromQt(line));
    }
    /// What has been drawn, as "0,0-3,4 (5,5)2".
    QString drawn() const
    {
        QStringList result;
        for (const OdDbObjectId& id : database->modelSpace()->entities()) {
            if (const auto* line = id.open<OdDbLine>())
                result << place(line->startPoint) + '-' + place(line->endPoint);
            if (const auto* drawnCircle = id.open<OdDbCircle>())
                result << '(' + place(drawnCircle->center) + ')' + QString::number(drawnCircle->radius);
        }
        return result.join(' ');
    }
    QString lastLog() const { return log.isEmpty() ? QString() : log.last(); }

    static QString place(const OdGePoint3d& point) { return QString("%1,%2").arg(point.x).arg(point.y); }

    QStringList log;
    QStringList ends;
    int changes = 0;
    PanelHost host;
    CommandRun run{documents, host};
    velmtest::ScopedExternalFunctions scope{functions(run)};
};
} // namespace workbench
