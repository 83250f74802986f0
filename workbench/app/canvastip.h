#pragma once

#include "host/tipwindow.h"
#include "od/oddbobjectid.h"

#include <wx/timer.h>

namespace workbench {
class DrawingCanvas;

/// Says what lies under a mouse that rests on the canvas: the entity and its layer. When, and whether at all, is up to
/// velm's settings. It goes as soon as the mouse moves on.
class CanvasTip
{
public:
    /// The canvas is not owned. Its events end before the tip does.
    explicit CanvasTip(DrawingCanvas& canvas);

    const TipWindow& window() const { return m_window; }
    void hide();

private:
    void mouseMoved();
    void show();

    DrawingCanvas& m_canvas;
    TipWindow m_window;
    wxTimer m_timer;
};
} // namespace workbench
