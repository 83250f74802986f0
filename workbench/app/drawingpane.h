#pragma once

#include "app/drawingviews.h"

#include <wx/panel.h>

#include <optional>

class QObject;

namespace workbench {
class ContextArea;
class PageGroup;

/// The canvas below the bar of current properties and the tabs of the open drawings, and the panels of running commands
/// beside it.
class DrawingPane : public wxPanel
{
public:
    /// The controllers are those of the two pages; they outlive the pane, as do the group and the documents.
    DrawingPane(wxWindow* parent, PageGroup& pages, OdApDocManager& documents, QObject* properties, QObject* drawings);

    DrawingCanvas& canvas() { return *m_canvas; }
    ContextArea& contextArea() { return *m_contextArea; }

private:
    DrawingCanvas* m_canvas;    // owned by the window tree
    ContextArea* m_contextArea; // owned by the window tree
    std::optional<DrawingViews> m_views;
};
} // namespace workbench
