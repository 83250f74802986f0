#pragma once

#include "drawing/drawingcanvas.h"
#include "wxtestmain.h"

#include <QProcess>
#include <QScreen>

#include <wx/frame.h>

/// A canvas in a frame of its own for each test, on the screen.
class CanvasTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_background = wxColour(20, 20, 20);
        m_frame = new wxFrame(nullptr, wxID_ANY, "Canvas", wxPoint(100, 100), wxSize(620, 440));
        m_canvas = new workbench::DrawingCanvas(m_frame);
        m_canvas->background = [this] { return m_background; };
        m_canvas->Bind(wxEVT_MOTION, [this](wxMouseEvent& event) {
            m_mouse = event.GetPosition();
            event.Skip();
        });
        m_frame->Show();
        // The window manager may still move and shrink the window.
        QVERIFY(waitUntil([this] {
            const wxSize size = m_canvas->GetClientSize();
            return m_frame->IsActive() && pixel(0, 0) == m_background && pixel(size.x - 1, size.y - 1) == m_background;
        }));
    }

    void cleanup()
    {
        m_canvas->onCursorMoved = {};
        m_frame->Destroy();
        wxTheApp->ProcessIdle(); // which deletes it
    }

protected:
    static void xdotool(const QString& arguments) { QCOMPARE(QProcess::execute("xdotool", arguments.split(' ')), 0); }
    static QString moveTo(const wxPoint& screen) { return QString("mousemove %1 %2").arg(screen.x).arg(screen.y); }
    /// Of the canvas, as it is on the screen: what the host's toolkit reads from there is kept by the graphics library
    /// and grows old.
    QImage picture(const wxRect& part) const
    {
        const wxPoint place = m_canvas->ClientToScreen(part.GetPosition());
        return QGuiApplication::primaryScreen()->grabWindow(0, place.x, place.y, part.width, part.height).toImage();
    }
    QImage picture() const { return picture(m_canvas->GetClientSize()); }
    wxColour pixel(int x, int y) const
    {
        const QRgb colour = picture(wxRect(x, y, 1, 1)).pixel(0, 0);
        return wxColour(static_cast<unsigned char>(qRed(colour)), static_cast<unsigned char>(qGreen(colour)),
                        static_cast<unsigned char>(qBlue(colour)));
    }
    /// Moves it until the canvas has noticed, up to a pixel: the toolkit keeps the last of several moves back.
    void moveMouse(int x, int y)
    {
        const auto isThere = [&] { return std::abs(m_mouse.x - x) <= 1 && m_mouse.y == y; };
        QVERIFY(waitUntil([&] {
            if (!isThere())
                xdotool(moveTo(m_canvas->ClientToScreen(wxPoint(x + 1, y))) + ' ' +
                        moveTo(m_canvas->ClientToScreen(wxPoint(x, y))));
            return isThere();
        }));
    }

    wxFrame* m_frame = nullptr;
    workbench::DrawingCanvas* m_canvas = nullptr;
    wxColour m_background{20, 20, 20};
    wxPoint m_mouse;
};
