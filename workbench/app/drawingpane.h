#pragma once

#include "app/drawingviews.h"

#include <wx/panel.h>

#include <optional>

class QObject;

namespace workbench {
class PageGroup;

/// The canvas below the bar of current properties and the tabs of the open drawings.
class DrawingPane : public wxPanel
{
public:
    /// The controllers are those of the two pages; they outlive the pane, as do the group and the documents.
    DrawingPane(wxWindow* parent, PageGroup& pages, OdApDocManager& documents, QObject* properties, QObject* drawings);

    DrawingCanvas& canvas() { return *m_canvas; }

private:
    DrawingCanvas* m_canvas; // owned by the window tree
    std::optional<DrawingViews> m_views;
};
} // namespace workbench
