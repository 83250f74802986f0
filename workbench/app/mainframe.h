#pragma once

#include "app/canvasmenu.h"
#include "app/documents.h"
#include "app/drawingpanels.h"
#include "app/opendrawings.h"
#include "command/commands.h"
#include "drawing/selection.h"
#include "host/contextmenupopup.h"
#include "od/odge.h"
#include "panels/dimstylescontroller.h"
#include "panels/drawinginfo.h"
#include "panels/imagescontroller.h"
#include "panels/layerscontroller.h"
#include "panels/partscontroller.h"
#include "panels/screenscontroller.h"
#include "props/currentpropertiescontroller.h"
#include "sheetset/sheetsetcontroller.h"
#include "steps/commandrun.h"
#include "units/unitscontroller.h"

#include <wx/frame.h>

class QObject;
class wxNotebook;
class wxSplitterWindow;

namespace workbench {
class CanvasTip;
class CommandLine;
class ContextArea;
class DrawingCanvas;
class FrameToolBar;
class HostServices;
class PageGroup;
class PagePanel;
class VelmSession;

/// The program's window: menu, tools, drawing, command line, and panels with pages at its side and below the drawing.
class MainFrame : public wxFrame, private OdApDocManagerReactor
{
public:
    /// All outlive the frame.
    MainFrame(VelmSession& session, HostServices& services, PageGroup& pages);
    ~MainFrame() override;

    void openDrawing(const wxString& file);
    void askForDrawing();
    /// Shows any page in the last tab, for whoever writes one; an empty name takes that tab away.
    void tryPage(const wxString& file);
    /// To call after a change of what is in the drawing.
    void drawingChanged();
    /// To call after a change of how the drawing writes values: all that shows some is written anew.
    void unitsChanged();

    VelmSession& session() { return m_session; }
    Documents& documents() { return m_documents; }
    Selection& selection() { return m_selection; }
    DrawingCanvas& canvas() { return *m_canvas; }
    /// The place of the running command's panel.
    ContextArea& contextArea() { return *m_contextArea; }
    CommandLine& commandLine() { return *m_commandLine; }
    /// The command that runs step by step.
    CommandRun& commandRun() { return m_commandRun; }
    LayersController& layers() { return m_layers; }
    DimStylesController& dimStyles() { return m_dimStyles; }
    StructureController& structure() { return m_drawingPanels.structure; }
    BranchController& branch() { return m_drawingPanels.branch; }
    PropertiesController& properties() { return m_drawingPanels.properties; }
    EntitiesController& entities() { return m_drawingPanels.entities; }
    FilterController& filter() { return m_drawingPanels.filter; }
    HealthController& health() { return m_drawingPanels.health; }
    ImagesController& images() { return m_images; }
    PartsController& parts() { return m_parts; }
    UnitsController& units() { return m_units; }
    ScreensController& screens() { return m_screens; }
    SheetSetController& sheetSets() { return m_sheetSets; }
    CurrentPropertiesController& currentProperties() { return m_currentProperties; }
    const CanvasTip& canvasTip() const { return *m_canvasTip; }
    wxNotebook& panels() { return *m_panels; }
    /// Those below, which are seen beside the others.
    wxNotebook& lowerPanels() { return *m_lowerPanels; }
    /// Those below the drawing, which are wide.
    wxNotebook& tablePanels() { return *m_tablePanels; }
    /// The page of a tab.
    PagePanel* panel(int tab) const;
    /// Brings the tab of this title to the front.
    void showPanel(const wxString& title);

private:
    void build();
    void addCommands();
    void connectCanvas();
    PagePanel* addPanel(wxNotebook* notebook, const QString& page, QObject* controller, const wxString& title);
    void pushUnits();
    void applyColours();
    void showCursor(const OdGePoint3d& point);
    void showState();
    void warnOfConfiguration();
    void onClose(wxCloseEvent& event);

    void documentBecameCurrent(OdApDocument* document) override;

    VelmSession& m_session;
    HostServices& m_services;
    PageGroup& m_pages;
    Documents m_documents;
    Selection m_selection;
    LayersController m_layers;
    DimStylesController m_dimStyles;
    DrawingInfo m_drawingInfo;
    ImagesController m_images;
    DrawingPanels m_drawingPanels;
    PartsController m_parts;
    UnitsController m_units;
    OdGePoint3d m_cursor; // in the coordinates of the drawing
    ScreensController m_screens;
    SheetSetController m_sheetSets;
    OpenDrawings m_openDrawings;
    CurrentPropertiesController m_currentProperties;
    Commands m_commands;
    CommandRun m_commandRun;
    CanvasMenu m_canvasMenu;
    ContextMenuPopup m_contextMenu;
    std::unique_ptr<CanvasTip> m_canvasTip;
    // All owned by the window tree.
    DrawingCanvas* m_canvas = nullptr;
    ContextArea* m_contextArea = nullptr;
    CommandLine* m_commandLine = nullptr;
    FrameToolBar* m_toolBar = nullptr;
    wxNotebook* m_panels = nullptr;
    wxNotebook* m_lowerPanels = nullptr;
    wxNotebook* m_tablePanels = nullptr;
    wxSplitterWindow* m_sideSplitter = nullptr;
    wxSplitterWindow* m_lowerSplitter = nullptr;
    wxSplitterWindow* m_tableSplitter = nullptr;
    wxSplitterWindow* m_panelSplitter = nullptr;
    PagePanel* m_triedPage = nullptr;
};
} // namespace workbench
