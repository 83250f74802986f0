#include "app/drawingviews.h"

#include <algorithm>

namespace workbench {
DrawingViews::DrawingViews(OdApDocManager& documents, DrawingCanvas& canvas) : m_documents(documents), m_canvas(canvas)
{
    m_documents.addReactor(this);
}

DrawingViews::~DrawingViews()
{
    m_documents.removeReactor(this);
    m_canvas.setDatabase(nullptr);
}

void DrawingViews::documentToBeDeactivated(OdApDocument* document)
{
    if (m_canvas.isFitted())
        m_views.erase(document);
    else
        m_views[document] = m_canvas.view();
}

void DrawingViews::documentBecameCurrent(OdApDocument* document)
{
    m_canvas.setDatabase(document ? document->database() : nullptr);
    if (const auto view = m_views.find(document); view != m_views.end())
        m_canvas.setView(view->second);
}

void DrawingViews::documentDestroyed(const OdString&)
{
    const std::vector<OdApDocument*> open = m_documents.documents();
    std::erase_if(m_views, [&](const auto& view) { return std::ranges::find(open, view.first) == open.end(); });
}
} // namespace workbench
