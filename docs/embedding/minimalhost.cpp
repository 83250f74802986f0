// A wxWidgets host that shows a QML page in its frame. README.md prints this file.
#include "velm/bridge/conversions.h"
#include "velm/bridge/engine.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/bridge/nativewindows.h"
#include "velm/theme/refreshenginetheme.h"

#include <QApplication>
#include <QQuickView>

#include <wx/wx.h>

#include <gtk/gtkx.h> // last, for the macros of X11

class Host : public wxApp
{
    bool OnInit() override
    {
        velm::ExternalFunctions functions; // what stays empty does nothing
        functions.processCommand = [](const OdString& command) { wxPuts(wxString(command.c_str())); };
        velm::setVELMExternalFunction(functions);
        velm::setDefaultLocale();
        m_engine = velm::createEngine(m_loader);
        velm::ignoreSingletonLeaksOnStartup(*m_engine);
        velm::refreshEngineTheme(m_engine, *qApp, m_loader, nullptr, ut::configColorTheme());

        auto* frame = new wxFrame(nullptr, wxID_ANY, "A host of velm");
        auto* panel = new wxPanel(frame);
        gtk_widget_realize(panel->GetHandle());
        const auto native = GDK_WINDOW_XID(gtk_widget_get_window(panel->GetHandle()));
        m_window.reset(velm::getQtWrapper(reinterpret_cast<HWND>(native)));
        auto* view = new QQuickView(m_engine.get(), m_window.get());
        view->setResizeMode(QQuickView::SizeRootObjectToView);
        view->setSource(velm::getQUrl("Welcome.qml", "Host", {}));
        panel->Bind(wxEVT_SIZE, [view](wxSizeEvent& event) { view->resize(velm::toQt(event.GetSize())); });
        panel->Bind(wxEVT_DESTROY, [this](wxWindowDestroyEvent&) { m_window.reset(); });
        view->resize(velm::toQt(panel->GetClientSize()));
        view->show();
        frame->Show();
        return true;
    }

    int OnExit() override
    {
        velm::cleanupBeforeShutdown(*m_engine);
        velm::resetEngine(m_engine);
        return 0;
    }

    velm::PluginImportLoader m_loader;
    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QWindow> m_window; // stands for the panel and owns the view
};

wxIMPLEMENT_APP_NO_MAIN(Host);

int main(int argc, char** argv)
{
    velm::undefineQtEnvVars(); // before the application, which reads them
    QApplication application(argc, argv);
    return wxEntry(argc, argv);
}
