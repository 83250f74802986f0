#pragma once

#include <QString>

#include <wx/app.h>
#include <wx/weakref.h>

#include <functional>
#include <memory>

class QApplication;

namespace workbench {
class HostServices;
class MainFrame;
class PageGroup;
class VelmSession;

/// The program: begins velm before its frame and ends it after. Both toolkits share the GLib main loop, so that the
/// host's loop, also that of a modal dialog, serves the pages too.
class WorkbenchApp : public wxApp
{
public:
    WorkbenchApp();
    ~WorkbenchApp() override;

    MainFrame* frame() const { return m_frame; }
    PageGroup& pages() { return *m_pages; }
    /// How often there was nothing left to do.
    unsigned restCount() const { return m_restCount; }
    int exitCode = 0;

private:
    bool OnInit() override;
    int OnRun() override;
    int OnExit() override;

    unsigned m_restCount = 0;
    QString m_drawing;
    QString m_tourFolder;
    std::unique_ptr<PageGroup> m_pages;
    std::unique_ptr<HostServices> m_services;
    std::unique_ptr<VelmSession> m_session;
    wxWeakRef<MainFrame> m_frame;
};

/// Runs the program to its end. `whenRunning`, when given, is called on a thread of its own as soon as the frame is
/// shown, and the program ends with its result.
int run(int argc, char** argv, std::function<int(WorkbenchApp&)> whenRunning = {});
} // namespace workbench
