#include "app/framecommands.h"

#include "app/mainframe.h"
#include "app/velmsession.h"
#include "command/commandline.h"
#include "panels/propertytexts.h"

namespace workbench {
void addFrameCommands(Commands& commands, MainFrame& frame)
{
    commands.add("OPEN", _("Opens a drawing: OPEN file"), [&frame](const wxString& file) {
        if (file.empty())
            frame.askForDrawing();
        else
            frame.openDrawing(file);
    });
    commands.add("CLOSE", _("Closes the drawing"), [&frame](const wxString&) { frame.documents().close(); });
    commands.add("THEME", _("Changes the colours: THEME DARK or THEME LIGHT"), [&](const wxString& name) {
        if (name.IsSameAs("DARK", false))
            frame.session().setThemeByManager(ut::EGuiColorTheme::Dark);
        else if (name.IsSameAs("LIGHT", false))
            frame.session().setThemeByManager(ut::EGuiColorTheme::Light);
        else
            frame.commandLine().log(commands.help("THEME"));
    });
    commands.add("RENAME", _("Gives the current layer another name"),
                 [&frame](const wxString&) { frame.layers().renameCurrent(); });
    commands.add("REBUILD", _("Loads all pages into a new engine"), [&frame](const wxString&) {
        frame.session().rebuildEngine();
        frame.commandLine().log(_("The pages run in a new engine."));
    });
    commands.add("PAGE", _("Shows a page of QML in a tab: PAGE file, or PAGE alone to close it"),
                 [&frame](const wxString& file) { frame.tryPage(file); });
    commands.add("LWUNITS", _("Writes lineweights in other units: LWUNITS MM or LWUNITS INCHES"),
                 [&](const wxString& name) {
                     if (name.IsSameAs("MM", false) || name.IsSameAs("INCHES", false)) {
                         setLineWeightsInInches(name.IsSameAs("INCHES", false));
                         frame.unitsChanged();
                     } else {
                         frame.commandLine().log(commands.help("LWUNITS"));
                     }
                 });
    commands.add("QUIT", _("Ends the program"), [&frame](const wxString&) { frame.Close(); });
    commands.add("HELP", _("Lists the commands"), [&](const wxString&) {
        for (const wxString& name : commands.names())
            frame.commandLine().log(wxString::Format("%-9s %s", name, commands.help(name)));
    });
}
} // namespace workbench
