#include "app/mainframe.h"

#include "app/canvastip.h"
#include "app/drawcommands.h"
#include "app/drawingcommands.h"
#include "app/drawingpane.h"
#include "app/framecommands.h"
#include "app/framegeometry.h"
#include "app/framemenu.h"
#include "app/frametoolbar.h"
#include "app/hostservices.h"
#include "app/layercommands.h"
#include "app/secondpane.h"
#include "app/sheetsets.h"
#include "app/velmsession.h"
#include "command/commandline.h"
#include "drawing/drawingcanvas.h"
#include "health/healthcommands.h"
#include "host/contextarea.h"
#include "host/pagedialog.h"
#include "host/pagegroup.h"
#include "host/pagepanel.h"
#include "host/themecolours.h"
#include "od/oddbdatabase.h"
#include "ut/config.h"
#include "velm/bridge/conversions.h"
#include "velm/units/settings.h"

#include <wx/filedlg.h>
#include <wx/filename.h>
#include <wx/notebook.h>
#include <wx/splitter.h>
#include <wx/textctrl.h>

#include <QDir>

namespace workbench {
namespace {
constexpr int sideWidth = 380;
constexpr int lowerHeight = 130;
constexpr int lowerPanelsHeight = 290;
constexpr int tablesHeight = 270;
} // namespace

MainFrame::MainFrame(VelmSession& session, HostServices& services, PageGroup& pages)
    : wxFrame(nullptr, wxID_ANY, "velm workbench", wxDefaultPosition, wxSize(1200, 820)), m_session(session),
      m_services(services), m_pages(pages), m_documents(services.documents(), services.dialogs(), pages),
      m_selection(services.documents()), m_layers(services.documents(), services.dialogs()),
      m_dimStyles(services.documents(), services.dialogs()), m_drawingInfo(services.documents()),
      m_images(services.documents()), m_drawingPanels(services.documents(), m_selection),
      m_sheetSets(services.documents()), m_openDrawings(services.documents()),
      m_currentProperties(services.documents(), m_selection, services.gui(), services.dialogs()),
      m_commandRun(services.documents(), services.gui()), m_canvasMenu(services.documents(), m_selection),
      m_contextMenu(pages, *this, m_canvasMenu)
{
    build();
    addCommands();
    connectCanvas();
    connectCommandRun(m_commands, *this);
    m_services.setCommandLine(m_commandLine);
    m_services.documents().addReactor(this);
    m_documents.log = [this](const wxString& line) { m_commandLine->log(line); };
    m_layers.onEdited = [this] { drawingChanged(); };
    m_dimStyles.onEdited = [this] { drawingChanged(); };
    properties().onEdited = [this] { drawingChanged(); };
    m_currentProperties.onEdited = [this] { drawingChanged(); };
    health().onFixed = [this](const QString& what) {
        drawingChanged();
        m_commandLine->log(velm::wxFromQt(what));
    };
    m_currentProperties.hasDialog = [this] { return m_pages.modals().top() != nullptr; };
    m_openDrawings.onChosen = [this] { m_commandLine->input()->SetFocus(); };
    structure().onBranchWanted = [this](const QModelIndex& index) {
        branch().show(index);
        showPanel(_("Branch"));
    };
    m_session.onThemeChanged = [this] { applyColours(); };
    m_session.onRebuilt = [this] {
        pushUnits();
        applyColours();
    };
    Bind(wxEVT_CLOSE_WINDOW, &MainFrame::onClose, this);
    // Escape reaches the command line from wherever the keyboard is, also from a page that has no use for it.
    Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
        if (event.GetKeyCode() == WXK_ESCAPE && event.GetModifiers() == wxMOD_NONE) {
            escapeCommand(*this);
        } else if (event.GetKeyCode() == WXK_TAB && event.ControlDown() && !event.AltDown()) {
            m_documents.next(!event.ShiftDown()); // no menu of this toolkit takes such a key
        } else {
            event.Skip();
        }
    });
    // Once what is inside the frame has its place too.
    const auto moved = [this](wxEvent& event) {
        event.Skip();
        CallAfter([] { velm::PositionManager::instance().update(); });
    };
    Bind(wxEVT_MOVE, moved);
    Bind(wxEVT_SIZE, moved);
    restoreGeometry(*this);
    applyColours();
    documentBecameCurrent(nullptr);
    if (!ut::Config::isWritable())
        warnOfConfiguration();
}

MainFrame::~MainFrame()
{
    m_services.documents().removeReactor(this);
    m_services.setCommandLine(nullptr);
    m_session.onThemeChanged = nullptr;
    m_session.onRebuilt = nullptr;
    m_commandRun.stop();
    // A page that goes may still tell something.
    properties().onEdited = nullptr;
    m_currentProperties.onEdited = nullptr;
    m_layers.onEdited = nullptr;
    m_dimStyles.onEdited = nullptr;
    m_selection.disconnect();
    // The pages go before the controllers that they show, which are members.
    DestroyChildren();
}

void MainFrame::build()
{
    m_sideSplitter =
        new wxSplitterWindow(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxSP_LIVE_UPDATE | wxSP_NOBORDER);
    m_lowerSplitter = new wxSplitterWindow(m_sideSplitter, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                                           wxSP_LIVE_UPDATE | wxSP_NOBORDER);
    m_tableSplitter = new wxSplitterWindow(m_lowerSplitter, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                                           wxSP_LIVE_UPDATE | wxSP_NOBORDER);
    auto* pane =
        new DrawingPane(m_tableSplitter, m_pages, m_services.documents(), &m_currentProperties, &m_openDrawings);
    m_canvas = &pane->canvas();
    m_contextArea = &pane->contextArea();
    m_canvas->background = [] { return wxGuiColour(ut::EGuiColor::Grey0); };
    m_canvas->accent = [] { return wxGuiColour(ut::EGuiColor::BlueHighlight); };
    m_commandLine = new CommandLine(m_lowerSplitter);
    m_panelSplitter = new wxSplitterWindow(m_sideSplitter, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                                           wxSP_LIVE_UPDATE | wxSP_NOBORDER);
    m_panels = new wxNotebook(m_panelSplitter, wxID_ANY);
    addPanel(m_panels, "Workbench/LayersPanel.qml", &m_layers, _("Layers"));
    addPanel(m_panels, "Workbench/StructurePanel.qml", &structure(), _("Structure"));
    addPanel(m_panels, "Workbench/BranchPanel.qml", &branch(), _("Branch"));
    addPanel(m_panels, "Workbench/FilterPanel.qml", &filter(), _("Filter"));
    addPanel(m_panels, "Workbench/UnitsPanel.qml", &m_units, _("Units"));
    addPanel(m_panels, "Workbench/SheetSetPanel.qml", &m_sheetSets, _("Sheet Sets"));
    m_lowerPanels = new wxNotebook(m_panelSplitter, wxID_ANY);
    addPanel(m_lowerPanels, "Workbench/PropertiesPanel.qml", &properties(), _("Properties"));
    addPanel(m_lowerPanels, "Workbench/DrawingPanel.qml", &m_drawingInfo, _("Drawing"));
    addPanel(m_lowerPanels, "Workbench/DeveloperPanel.qml", nullptr, _("Developer"));
    m_screens.setWindow(addPanel(m_lowerPanels, "Workbench/ScreensPanel.qml", &m_screens, _("Screens")));

    m_tablePanels = new wxNotebook(m_tableSplitter, wxID_ANY);
    addPanel(m_tablePanels, "Workbench/EntitiesPanel.qml", &entities(), _("Entities"));
    addPanel(m_tablePanels, "Workbench/DimStylesPanel.qml", &m_dimStyles, _("Dimension Styles"));
    addPanel(m_tablePanels, "Workbench/HealthPanel.qml", &health(), _("Health"));
    addPanel(m_tablePanels, "Workbench/PartsPanel.qml", &m_parts, _("Million Rows"));
    addPanel(m_tablePanels, "Workbench/ImagesPanel.qml", &m_images, _("Images"));
    addPanel(m_tablePanels, "Workbench/ToolIconsPanel.qml", &m_images, _("Tool Icons"));

    m_lowerSplitter->SetMinimumPaneSize(FromDIP(90));
    m_sideSplitter->SetMinimumPaneSize(FromDIP(200));
    m_panelSplitter->SetMinimumPaneSize(FromDIP(120));
    m_sideSplitter->SplitVertically(m_lowerSplitter, m_panelSplitter);
    m_panelSplitter->SplitHorizontally(m_panels, m_lowerPanels);
    m_tableSplitter->SetMinimumPaneSize(FromDIP(120));
    m_lowerSplitter->SplitHorizontally(m_tableSplitter, m_commandLine);
    m_tableSplitter->SplitHorizontally(pane, m_tablePanels);
    keepSecondPane(*m_sideSplitter, FromDIP(sideWidth));
    keepSecondPane(*m_lowerSplitter, FromDIP(lowerHeight));
    keepSecondPane(*m_panelSplitter, FromDIP(lowerPanelsHeight));
    keepSecondPane(*m_tableSplitter, FromDIP(tablesHeight));

    const std::vector<Action> actions = frameActions(*this);
    addMenus(*this, actions);
    m_toolBar = new FrameToolBar(*this, actions);
    SetToolBar(m_toolBar);
    m_services.gui().setContextArea(m_contextArea);
    m_contextArea->setAcceleratorTable(shortcuts(*GetMenuBar()));
    for (PagePanel* page : m_pages.pages())
        page->setAcceleratorTable(shortcuts(*GetMenuBar()));
    CreateStatusBar(3, wxSTB_DEFAULT_STYLE & ~wxSTB_SIZEGRIP);
    const int widths[] = {-1, FromDIP(130), FromDIP(90)};
    SetStatusWidths(3, widths);
}

PagePanel* MainFrame::addPanel(wxNotebook* notebook, const QString& page, QObject* controller, const wxString& title)
{
    const QUrl url = QDir::isAbsolutePath(page) ? QUrl::fromLocalFile(page) : velm::getUIFullUrl(page);
    auto* panel = new PagePanel(notebook, m_pages, url, controller);
    if (GetMenuBar())
        panel->setAcceleratorTable(shortcuts(*GetMenuBar()));
    notebook->AddPage(panel, title);
    return panel;
}

PagePanel* MainFrame::panel(int tab) const
{
    return dynamic_cast<PagePanel*>(m_panels->GetPage(static_cast<size_t>(tab)));
}

void MainFrame::showPanel(const wxString& title)
{
    for (wxNotebook* notebook : {m_panels, m_lowerPanels, m_tablePanels})
        for (size_t tab = 0; tab < notebook->GetPageCount(); ++tab)
            if (notebook->GetPageText(tab) == title)
                notebook->SetSelection(tab);
}

void MainFrame::addCommands()
{
    addFrameCommands(m_commands, *this);
    addDrawingCommands(m_commands, *this);
    addLayerCommands(m_commands, *this);
    addDrawCommands(m_commands, *this);
    addHealthCommands(m_commands, *this);
    connectSheetSets(m_commands, *this);
}

void MainFrame::connectCanvas()
{
    m_canvas->onCursorMoved = [this](const OdGePoint3d& point) { showCursor(point); };
    m_canvas->onPicked = [this](OdDbObjectId entity) { m_selection.set(entity); };
    QObject::connect(&m_selection, &Selection::changed, &m_selection,
                     [this] { m_canvas->setHighlighted(m_selection.entities()); });
    QObject::connect(&filter(), &FilterController::matchesFound, &m_selection,
                     [this] { m_canvas->setHighlighted(filter().matches()); });
    m_canvasTip = std::make_unique<CanvasTip>(*m_canvas);
    m_canvas->onMenuWanted = [this] { m_contextMenu.open(); };
    m_canvasMenu.isGridShown = [this] { return m_canvas->isGridShown(); };
    m_canvasMenu.isSnapping = [this] { return m_canvas->isSnapping(); };
    // Once the menu is closed: a command may open a dialog or take the pages down.
    m_canvasMenu.run = [this](const wxString& line) {
        CallAfter([this, line] { m_commandLine->processCommand(line); });
    };
}

void MainFrame::tryPage(const wxString& file)
{
    if (m_triedPage) {
        m_panels->DeletePage(static_cast<size_t>(m_panels->FindPage(m_triedPage)));
        m_triedPage = nullptr;
    }
    if (file.empty())
        return;
    wxFileName name(file);
    name.MakeAbsolute();
    m_triedPage = addPanel(m_panels, velm::toQt(name.GetFullPath()), nullptr, name.GetFullName());
    m_panels->SetSelection(m_panels->GetPageCount() - 1);
    if (!m_triedPage->error().isEmpty())
        m_commandLine->log(velm::wxFromQt(m_triedPage->error()));
}

void MainFrame::openDrawing(const wxString& file)
{
    m_documents.open(file);
}

void MainFrame::askForDrawing()
{
    wxFileDialog dialog(this, _("Open Drawing"), {}, {}, _("Drawings (*.dxf)|*.dxf;*.DXF|All files|*"),
                        wxFD_OPEN | wxFD_FILE_MUST_EXIST);
    if (dialog.ShowModal() == wxID_OK)
        openDrawing(dialog.GetPath());
}

void MainFrame::documentBecameCurrent(OdApDocument* document)
{
    m_canvasTip->hide();
    pushUnits();
    SetTitle(document ? wxFileName(document->fileName().c_str()).GetFullName() + " - velm workbench"
                      : wxString("velm workbench"));
    SetStatusText({}, 0);
    showState();
}

void MainFrame::drawingChanged()
{
    m_canvasTip->hide();
    m_canvas->refreshDrawing();
    m_layers.refresh();
    m_dimStyles.refresh();
    m_drawingInfo.refresh();
    m_images.refresh();
    m_drawingPanels.refresh();
    m_currentProperties.refresh();
    showState();
}

void MainFrame::unitsChanged()
{
    pushUnits();
    drawingChanged();
    if (!GetStatusBar()->GetStatusText(0).empty())
        showCursor(m_cursor);
}

void MainFrame::pushUnits()
{
    velm::Settings* settings = velm::Settings::instance();
    OdApDocument* document = m_documents.current();
    const OdUnits units = document ? document->database()->formatter().units() : OdUnits();
    settings->setDoc(document);
    settings->setLinearUnitPrecision(units.linearPrecision);
    settings->setAngularUnitPrecision(units.angularPrecision);
    settings->setAngularUnitType(units.angularKind);
    // The kind of lengths is no setting of its own: fields write their values anew with the precision.
    Q_EMIT settings->linearUnitPrecisionChanged();
}

void MainFrame::applyColours()
{
    m_commandLine->setColours(wxGuiColour(ut::EGuiColor::Grey10), wxGuiColour(ut::EGuiColor::PanelBackground),
                              wxGuiColour(ut::EGuiColor::InputBackground));
    m_canvas->Refresh();
    m_toolBar->setTheme(m_session.theme());
    const bool isDark = m_session.theme() == ut::EGuiColorTheme::Dark;
    m_layers.setDarkBackground(isDark);
    entities().setDarkBackground(isDark);
    m_images.setDarkBackground(isDark);
    m_currentProperties.rebuild();
    wxStatusBar* bar = GetStatusBar();
    bar->SetBackgroundColour(wxGuiColour(ut::EGuiColor::PanelsetIconStripBase));
    bar->SetForegroundColour(wxGuiColour(ut::EGuiColor::Grey8));
    SetBackgroundColour(wxGuiColour(ut::EGuiColor::PanelBackground));
    showState();
    Refresh();
}

void MainFrame::showCursor(const OdGePoint3d& point)
{
    OdApDocument* document = m_documents.current();
    if (!document)
        return;
    m_cursor = point;
    const OdUnitsFormatter& formatter = document->database()->formatter();
    SetStatusText(
        wxString::Format("%s,  %s", formatter.formatLinear(point.x).c_str(), formatter.formatLinear(point.y).c_str()),
        0);
}

void MainFrame::showState()
{
    SetStatusText(m_documents.current() ? wxString::Format(_("%d entities"), m_drawingInfo.entityCount())
                                        : wxString(_("No drawing")),
                  1);
    SetStatusText(m_session.theme() == ut::EGuiColorTheme::Dark ? _("Dark") : _("Light"), 2);
}

void MainFrame::warnOfConfiguration()
{
    const wxString text =
        wxString::Format(_("The settings can't be stored: %s can't be written. They last until the program ends."),
                         ut::Config::fileName().c_str());
    m_commandLine->log(text);
    // A box over a window that isn't active yet would not get the keyboard.
    Bind(wxEVT_ACTIVATE, [this, text, told = false](wxActivateEvent& event) mutable {
        event.Skip();
        if (!event.GetActive() || std::exchange(told, true))
            return;
        CallAfter([this, text] {
            m_services.dialogs().showWarningMessage(_("Settings").wc_str(), text.wc_str(), this,
                                                    velm::MessageButtonStyle::OK);
        });
    });
}

void MainFrame::onClose(wxCloseEvent& event)
{
    // A modal dialog that still runs is ended first, and whoever waits for it goes on, before its world goes.
    if (wxDialog* dialog = m_pages.modals().top()) {
        if (auto* page = dynamic_cast<PageDialog*>(dialog))
            page->abandon();
        else
            dialog->EndModal(wxID_CANCEL);
        CallAfter([this] { Close(true); });
        if (event.CanVeto())
            event.Veto();
        return;
    }
    storeGeometry(*this);
    Hide();
    Destroy();
}
} // namespace workbench
