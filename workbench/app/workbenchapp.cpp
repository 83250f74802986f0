#include "app/workbenchapp.h"

#include "app/hostservices.h"
#include "app/mainframe.h"
#include "app/velmsession.h"
#include "host/pagegroup.h"
#include "tour/tour.h"
#include "velm/bridge/conversions.h"
#include "velm/bridge/engine.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include <wx/cmdline.h>

namespace workbench {
namespace {
std::function<int(WorkbenchApp&)>& whenRunningFunction()
{
    static std::function<int(WorkbenchApp&)> function;
    return function;
}
} // namespace

WorkbenchApp::WorkbenchApp() = default;

WorkbenchApp::~WorkbenchApp() = default;

bool WorkbenchApp::OnInit()
{
    SetAppName("velm-workbench");
    SetAppDisplayName("velm workbench");
    wxCmdLineParser parser(argc, argv);
    parser.AddLongOption("tour", "walk through the program without a person and save a picture of each step here");
    parser.AddParam("drawing", wxCMD_LINE_VAL_STRING, wxCMD_LINE_PARAM_OPTIONAL);
    parser.AddSwitch("h", "help", "show this", wxCMD_LINE_OPTION_HELP);
    if (const int wrong = parser.Parse(); wrong != 0) {
        exitCode = wrong > 0 ? 2 : 0;
        return false;
    }
    wxString folder;
    if (parser.Found("tour", &folder))
        m_tourFolder = velm::toQt(folder);
    if (parser.GetParamCount() > 0)
        m_drawing = velm::toQt(parser.GetParam(0));

    m_pages = std::make_unique<PageGroup>();
    m_services = std::make_unique<HostServices>(*m_pages);
    m_session = std::make_unique<VelmSession>(*qApp, m_services->functions(), *m_pages);
    m_frame = new MainFrame(*m_session, *m_services, *m_pages);
    m_frame->Show();
    // Objects that a page deletes later wait for an event loop of their toolkit to end, and there is none.
    Bind(wxEVT_IDLE, [this](wxIdleEvent& event) {
        ++m_restCount;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        event.Skip();
    });
    if (!m_drawing.isEmpty())
        m_frame->CallAfter([this] { m_frame->openDrawing(velm::wxFromQt(m_drawing)); });
    return true;
}

int WorkbenchApp::OnRun()
{
    std::function<int(WorkbenchApp&)> work = std::exchange(whenRunningFunction(), {});
    if (!m_tourFolder.isEmpty())
        work = [this](WorkbenchApp& app) { return runTour(app, m_tourFolder, !m_drawing.isEmpty()); };
    std::unique_ptr<QThread> worker;
    if (work) {
        worker.reset(QThread::create([this, work] {
            const int result = work(*this);
            QMetaObject::invokeMethod(qApp, [this, result] {
                exitCode = result;
                if (m_frame)
                    m_frame->Close(true);
            });
        }));
        worker->start();
    }
    const int result = wxApp::OnRun();
    if (worker)
        worker->wait();
    return result != 0 ? result : exitCode;
}

int WorkbenchApp::OnExit()
{
    // A frame that is still there would die after the engine.
    delete m_frame.get();
    m_session.reset();
    m_services.reset();
    m_pages.reset();
    return wxApp::OnExit();
}

int run(int argc, char** argv, std::function<int(WorkbenchApp&)> whenRunning)
{
    // Both toolkits must speak to the same X server: a page is a window inside one of the host's.
    qputenv("GDK_BACKEND", "x11");
    qputenv("QT_QPA_PLATFORM", "xcb");
    velm::undefineQtEnvVars();
    QApplication application(argc, argv);
    // The host's frame decides when the program ends.
    QApplication::setQuitOnLastWindowClosed(false);
    // A tour begins like a first start, and leaves the person's settings alone.
    const QTemporaryDir tourSettings;
    for (int index = 1; index < argc; ++index)
        if (QByteArrayView(argv[index]).startsWith("--tour")) {
            qputenv("TANDOLIN_CONFIG", QFile::encodeName(tourSettings.filePath("settings.ini")));
            qputenv("XDG_DATA_HOME", QFile::encodeName(tourSettings.filePath("data")));
        }
    whenRunningFunction() = std::move(whenRunning);
    auto* app = new WorkbenchApp;
    wxApp::SetInstance(app);
    return wxEntry(argc, argv);
}
} // namespace workbench
