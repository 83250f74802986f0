#include "app/drawingpane.h"

#include "host/contextarea.h"
#include "host/pagepanel.h"
#include "velm/bridge/externalfunctions.h"

#include <wx/sizer.h>

namespace workbench {
namespace {
// The pages have these heights from the start: nothing moves when a drawing comes.
constexpr int barHeight = 36;
constexpr int tabsHeight = 26;
} // namespace

DrawingPane::DrawingPane(wxWindow* parent, PageGroup& pages, OdApDocManager& documents, QObject* properties,
                         QObject* drawings)
    : wxPanel(parent)
{
    auto* bar = new PagePanel(this, pages, velm::getUIFullUrl("Workbench/CurrentPropertiesBar.qml"), properties);
    auto* tabs = new PagePanel(this, pages, velm::getUIFullUrl("Workbench/DrawingTabs.qml"), drawings);
    m_contextArea = new ContextArea(this, pages);
    m_canvas = new DrawingCanvas(this);
    m_views.emplace(documents, *m_canvas);
    bar->SetMinSize(wxSize(-1, FromDIP(barHeight)));
    tabs->SetMinSize(wxSize(-1, FromDIP(tabsHeight)));
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(bar, wxSizerFlags().Expand());
    sizer->Add(tabs, wxSizerFlags().Expand());
    auto* drawing = new wxBoxSizer(wxHORIZONTAL);
    drawing->Add(m_contextArea, wxSizerFlags().Expand());
    drawing->Add(m_canvas, wxSizerFlags(1).Expand());
    sizer->Add(drawing, wxSizerFlags(1).Expand());
    SetSizer(sizer);
}
} // namespace workbench
