#pragma once

#include "host/dialogfactory.h"
#include "host/guicontroller.h"
#include "host/unitformatter.h"
#include "od/odapdocmanager.h"
#include "velm/bridge/externalfunctions.h"

namespace workbench {
class CommandLine;
class PageGroup;

/// What the host lends to velm: its services, the callbacks by which velm finds them, and the functions that make what a
/// filter of entities works on.
class HostServices
{
public:
    explicit HostServices(PageGroup& pages);
    ~HostServices();
    HostServices(const HostServices&) = delete;
    HostServices& operator=(const HostServices&) = delete;

    OdApDocManager& documents() { return m_documents; }
    GuiController& gui() { return m_gui; }
    DialogFactory& dialogs() { return m_dialogs; }
    /// Where commands of pages go; not owned; null takes none.
    void setCommandLine(CommandLine* commandLine);

    /// All callbacks. They must not outlive this object.
    velm::ExternalFunctions functions();

private:
    /// Writes a line above the command line, as soon as there is one.
    void tell(const QString& message);
    velm::IUnitFormatter* formatterFor(double value);

    OdApDocManager m_documents;
    GuiController m_gui;
    DialogFactory m_dialogs;
    UnitFormatter m_formatter;
    CommandLine* m_commandLine = nullptr; // not owned
    QStringList m_untold;
};
} // namespace workbench
