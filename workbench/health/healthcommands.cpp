#include "health/healthcommands.h"

#include "app/mainframe.h"
#include "command/commandline.h"
#include "velm/bridge/conversions.h"

namespace workbench {
void addHealthCommands(Commands& commands, MainFrame& frame)
{
    commands.add("HEALTH", _("Tells what is amiss in the drawing"), [&frame](const wxString&) {
        if (!frame.health().hasDrawing()) {
            frame.commandLine().log(_("No drawing is open."));
            return;
        }
        const HealthTaskModel& tasks = *frame.health().tasks();
        for (int row = 0; row < tasks.size(); ++row)
            frame.commandLine().log(wxString::Format("%s: %d",
                                                     velm::wxFromQt(tasks.data(row, Qt::DisplayRole).toString()),
                                                     tasks.data(row, HealthTaskModel::CountRole).toInt()));
        frame.showPanel(_("Health"));
    });
}
} // namespace workbench
