#pragma once

#include "drawing/drawingcanvas.h"
#include "od/odapdocmanager.h"

#include <map>

namespace workbench {
/// Shows the current drawing on the canvas, each as it was left: with the part of it that was seen last.
class DrawingViews : private OdApDocManagerReactor
{
public:
    /// Both outlive the views.
    DrawingViews(OdApDocManager& documents, DrawingCanvas& canvas);
    ~DrawingViews() override;

private:
    void documentToBeDeactivated(OdApDocument* document) override;
    void documentBecameCurrent(OdApDocument* document) override;
    void documentDestroyed(const OdString& fileName) override;

    OdApDocManager& m_documents;
    DrawingCanvas& m_canvas;
    std::map<const OdApDocument*, DrawingView> m_views; // of those that a person has moved
};
} // namespace workbench
