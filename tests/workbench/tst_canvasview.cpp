#include "canvastest.h"
#include "entities.h"

using namespace workbench;

namespace {
bool isNear(double a, double b, double tolerance)
{
    return std::abs(a - b) <= tolerance;
}
} // namespace

/// Which part of a drawing the canvas shows.
class CanvasViewTest : public CanvasTest
{
    Q_OBJECT
private Q_SLOTS:
    void zoomKeepsThePointUnderTheCursor_data();
    void zoomKeepsThePointUnderTheCursor();
    void wheelAndMiddleButtonMoveTheView();
    void viewStaysFittedUntilTheUserMovesIt();
    void anyDrawingFitsSanely_data();
    void anyDrawingFitsSanely();
};

void CanvasViewTest::zoomKeepsThePointUnderTheCursor_data()
{
    QTest::addColumn<double>("origin");
    QTest::addColumn<double>("size");
    QTest::newRow("a small drawing") << 0.0 << 100.0;
    QTest::newRow("far from the origin") << 1e7 << 20.0;
    QTest::newRow("tiny") << 0.0 << 1e-5;
}

void CanvasViewTest::zoomKeepsThePointUnderTheCursor()
{
    QFETCH(const double, origin);
    QFETCH(const double, size);
    OdDbDatabase database;
    addLine(database, {origin, origin, 0}, {origin + size, origin + size, 0});
    m_canvas->setDatabase(&database);
    const wxPoint cursor(77, 311);
    const OdGePoint3d before = m_canvas->view().toWorld(cursor.x, cursor.y);
    for (const double factor : {3.0, 1.2, 1.0 / 3.0, 0.5, 40.0}) {
        m_canvas->zoomBy(factor, cursor);
        const OdGePoint3d after = m_canvas->view().toWorld(cursor.x, cursor.y);
        const double halfPixel = 0.5 / m_canvas->view().scale;
        QVERIFY(isNear(before.x, after.x, halfPixel) && isNear(before.y, after.y, halfPixel));
    }
    const double scale = m_canvas->view().scale;
    for (const double factor : {0.0, -1.0, 1e300, double(NAN), double(INFINITY)})
        m_canvas->zoomBy(factor, cursor);
    QCOMPARE(m_canvas->view().scale, scale);
}

void CanvasViewTest::wheelAndMiddleButtonMoveTheView()
{
    OdDbDatabase database;
    addLine(database, {0, 0, 0}, {100, 50, 0});
    m_canvas->setDatabase(&database);
    OdGePoint3d cursor;
    m_canvas->onCursorMoved = [&](const OdGePoint3d& point) { cursor = point; };
    const double fitted = m_canvas->view().scale;
    const OdGePoint3d fixed = m_canvas->view().toWorld(150, 100);

    moveMouse(150, 100);
    const OdGePoint3d seen = m_canvas->view().toWorld(m_mouse.x, m_mouse.y);
    QVERIFY(isNear(cursor.x, seen.x, 1e-9) && isNear(cursor.y, seen.y, 1e-9));
    xdotool("click --repeat 3 4");
    QVERIFY(waitUntil([&] { return isNear(m_canvas->view().scale, fitted * 1.728, 1e-9); }));
    QVERIFY(isNear(m_canvas->view().toWorld(150, 100).x, fixed.x, 1e-9));

    const double pixel = 1.0 / m_canvas->view().scale;
    const auto isUnder = [&](const wxPoint& point) {
        const OdGePoint3d world = m_canvas->view().toWorld(point.x, point.y);
        return isNear(world.x, fixed.x, 1.5 * pixel) && isNear(world.y, fixed.y, 1.5 * pixel);
    };
    xdotool("mousedown 2");
    moveMouse(200, 130);
    moveMouse(250, 160);
    QVERIFY(isUnder(m_mouse));
    xdotool("mouseup 2");
    moveMouse(90, 90);
    QVERIFY(isUnder(wxPoint(250, 160))); // panning has ended

    xdotool("click --repeat 2 --delay 20 2");
    QVERIFY(waitUntil([&] { return isNear(m_canvas->view().scale, fitted, 1e-9); }));
}

void CanvasViewTest::viewStaysFittedUntilTheUserMovesIt()
{
    OdDbDatabase database;
    addLine(database, {0, 0, 0}, {100, 1, 0});
    m_canvas->setDatabase(&database);
    const double scale = m_canvas->view().scale;
    const int width = m_canvas->GetClientSize().x;
    m_frame->SetSize(900, 440);
    QVERIFY(waitUntil([&] { return m_canvas->view().size.x > width; }));
    QVERIFY(m_canvas->view().scale > scale);
    m_canvas->panBy(wxPoint(5, 5));
    const double moved = m_canvas->view().scale;
    m_frame->SetSize(620, 440);
    QVERIFY(waitUntil([&] { return m_canvas->view().size.x == width; }));
    QCOMPARE(m_canvas->view().scale, moved);
}

void CanvasViewTest::anyDrawingFitsSanely_data()
{
    QTest::addColumn<QList<double>>("points"); // x and y in turn
    QTest::addColumn<double>("least");         // pixels per unit
    QTest::newRow("no entities") << QList<double>{} << 10.0;
    QTest::newRow("one point") << QList<double>{5, 5} << 10.0;
    QTest::newRow("all in one place, far away") << QList<double>{1e7, 1e7, 1e7, 1e7} << 10.0;
    QTest::newRow("a horizontal line") << QList<double>{0, 3, 1000, 3} << 0.5;
    QTest::newRow("a vertical line") << QList<double>{3, 0, 3, 1000} << 0.3;
    QTest::newRow("a millimetre far away") << QList<double>{1e7, 1e7, 1e7 + 1, 1e7} << 500.0;
    QTest::newRow("the largest coordinates") << QList<double>{-1e15, -1e15, 1e15, 1e15} << 1e-13;
}

void CanvasViewTest::anyDrawingFitsSanely()
{
    QFETCH(const QList<double>, points);
    QFETCH(const double, least);
    OdDbDatabase database;
    for (qsizetype i = 0; i < points.size(); i += 2)
        add<OdDbPoint>(database)->position = {points[i], points[i + 1], 0};
    m_canvas->setDatabase(&database);
    QVERIFY(waitUntil([&] { return m_canvas->drawnEntityCount() == static_cast<std::size_t>(points.size() / 2); }));
    const DrawingView& view = m_canvas->view();
    QVERIFY2(view.scale >= least && view.scale <= least * 100, qPrintable(QString::number(view.scale)));
    for (qsizetype i = 0; i < points.size(); i += 2) {
        const wxPoint2DDouble screen = view.toScreen(points[i], points[i + 1]);
        QVERIFY(screen.m_x >= 0 && screen.m_x <= view.size.x && screen.m_y >= 0 && screen.m_y <= view.size.y);
    }
}

int main(int argc, char** argv)
{
    return runWxTest<CanvasViewTest>(argc, argv);
}

#include "tst_canvasview.moc"
