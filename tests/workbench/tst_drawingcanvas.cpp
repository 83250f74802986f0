#include "wxtestmain.h"

#include "drawing/drawingcanvas.h"
#include "drawing/dxfreader.h"

#include <wx/frame.h>

#include <QProcess>
#include <QScreen>

using namespace workbench;

namespace {

template <typename T>
T* add(OdDbDatabase& database, OdDbBlockTableRecord* block = nullptr)
{
    return database.addEntity(std::make_unique<T>(), block ? block : database.modelSpace());
}

OdDbLine* addLine(OdDbDatabase& database, OdGePoint3d from, OdGePoint3d to, OdDbBlockTableRecord* block = nullptr)
{
    auto* line = add<OdDbLine>(database, block);
    line->startPoint = from;
    line->endPoint = to;
    return line;
}

OdDbBlockReference* addInsert(OdDbDatabase& database, const OdDbBlockTableRecord* of,
                              OdDbBlockTableRecord* block = nullptr)
{
    auto* insert = add<OdDbBlockReference>(database, block);
    insert->blockTableRecord = of->objectId();
    return insert;
}

QString colours(const Tessellation& tessellation)
{
    QStringList indices;
    for (const Piece& piece : tessellation.pieces)
        indices << QString::number(piece.color.colorIndex());
    return indices.join(' ');
}

wxColour pixel(wxWindow* window, int x, int y)
{
    const wxPoint position = window->ClientToScreen(wxPoint(x, y));
    // What wx reads from the screen is kept by the graphics library and grows old.
    const QColor colour(
        QGuiApplication::primaryScreen()->grabWindow(0, position.x, position.y, 1, 1).toImage().pixel(0, 0));
    return wxColour(static_cast<unsigned char>(colour.red()), static_cast<unsigned char>(colour.green()),
                    static_cast<unsigned char>(colour.blue()));
}

void xdotool(const QString& arguments)
{
    QCOMPARE(QProcess::execute("xdotool", arguments.split(' ')), 0);
}

QString at(wxWindow* window, int x, int y)
{
    const wxPoint position = window->ClientToScreen(wxPoint(x, y));
    return QString("mousemove %1 %2").arg(position.x).arg(position.y);
}

bool isNear(double a, double b, double tolerance)
{
    return std::abs(a - b) <= tolerance;
}

} // namespace

class DrawingCanvasTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void entitiesInViewAreCounted();
    void hiddenLayersAreNotDrawn();
    void lineHasItsColourOnScreen_data();
    void lineHasItsColourOnScreen();
    void layerColourChangesWithARefresh();
    void selectedEntitiesAreLitUpAndZoomedTo();
    void zoomKeepsThePointUnderTheCursor_data();
    void zoomKeepsThePointUnderTheCursor();
    void wheelAndMiddleButtonMoveTheView();
    void viewStaysFittedUntilTheUserMovesIt();
    void anyDrawingFitsSanely_data();
    void anyDrawingFitsSanely();
    void coloursComeThroughInserts();
    void layersOfInsertsHideTheirParts();
    void curvesReachTheirExtremes();
    void endlessBlocksComeToAnEnd();
    void dashedLinesHaveGaps();
    void coloursThatWouldVanishAreMoved_data();
    void coloursThatWouldVanishAreMoved();

private:
    /// Moves it until the canvas has noticed, up to a pixel: the toolkit keeps the last of several moves back.
    void moveMouse(int x, int y)
    {
        const auto isThere = [&] { return std::abs(m_mouse.x - x) <= 1 && m_mouse.y == y; };
        QVERIFY(waitUntil([&] {
            if (!isThere())
                xdotool(at(m_canvas, x + 1, y) + ' ' + at(m_canvas, x, y));
            return isThere();
        }));
    }

    wxFrame* m_frame = nullptr;
    DrawingCanvas* m_canvas = nullptr;
    wxColour m_background{20, 20, 20};
    wxPoint m_mouse;
};

void DrawingCanvasTest::init()
{
    m_background = wxColour(20, 20, 20);
    m_frame = new wxFrame(nullptr, wxID_ANY, "Canvas", wxPoint(100, 100), wxSize(620, 440));
    m_canvas = new DrawingCanvas(m_frame);
    m_canvas->background = [this] { return m_background; };
    m_canvas->Bind(wxEVT_MOTION, [this](wxMouseEvent& event) {
        m_mouse = event.GetPosition();
        event.Skip();
    });
    m_frame->Show();
    // The window manager may still move and shrink the window.
    QVERIFY(waitUntil([this] {
        const wxSize size = m_canvas->GetClientSize();
        return m_frame->IsActive() && pixel(m_canvas, 0, 0) == m_background &&
               pixel(m_canvas, size.x - 1, size.y - 1) == m_background;
    }));
}

void DrawingCanvasTest::cleanup()
{
    m_canvas->onCursorMoved = {};
    m_frame->Destroy();
    wxTheApp->ProcessIdle(); // which deletes it
}

void DrawingCanvasTest::entitiesInViewAreCounted()
{
    OdDbDatabase database;
    for (int i = 0; i < 10; ++i)
        addLine(database, {i * 10.0, 0, 0}, {i * 10.0, 50, 0});
    m_canvas->setDatabase(&database);
    QVERIFY(waitUntil([this] { return m_canvas->drawnEntityCount() == 10; }));
    const wxSize size = m_canvas->GetClientSize();
    m_canvas->zoomBy(20.0, wxPoint(size.x / 2, size.y / 2));
    m_canvas->panBy(wxPoint(20, 0)); // the middle lies between two lines
    QVERIFY(waitUntil([this] { return m_canvas->drawnEntityCount() < 2; }));
    m_canvas->zoomExtents();
    QVERIFY(waitUntil([this] { return m_canvas->drawnEntityCount() == 10; }));
    m_canvas->setDatabase(nullptr);
    QVERIFY(waitUntil([this] { return m_canvas->drawnEntityCount() == 0; }));
}

void DrawingCanvasTest::hiddenLayersAreNotDrawn()
{
    const DxfReadResult house = readDxf(QString(VELM_SAMPLES "/house.dxf").toStdWString(), {});
    QVERIFY(house.database);
    m_canvas->setDatabase(house.database.get());
    QVERIFY(waitUntil([this] { return m_canvas->drawnEntityCount() > 400; }));
    const std::size_t all = m_canvas->drawnEntityCount();
    house.database->findLayer(L"Elektro")->setIsOff(false); // six inserts, whose parts are on layer 0
    m_canvas->refreshDrawing();
    QVERIFY(waitUntil([&] { return m_canvas->drawnEntityCount() == all + 6; }));
    house.database->findLayer(L"Schraffur")->setIsOff(true);
    m_canvas->refreshDrawing();
    QVERIFY(waitUntil([&] { return m_canvas->drawnEntityCount() + 100 < all; }));
}

void DrawingCanvasTest::lineHasItsColourOnScreen_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("background");
    QTest::addColumn<QString>("colour");
    QTest::newRow("red on dark") << 1 << 20 << "#FF0000";
    QTest::newRow("red on light") << 1 << 255 << "#FF0000";
    QTest::newRow("the seventh colour on dark is white") << 7 << 20 << "#FFFFFF";
    QTest::newRow("the seventh colour on light is black") << 7 << 255 << "#000000";
}

void DrawingCanvasTest::lineHasItsColourOnScreen()
{
    QFETCH(const int, index);
    QFETCH(const int, background);
    QFETCH(const QString, colour);
    const auto grey = static_cast<unsigned char>(background);
    m_background = wxColour(grey, grey, grey);
    OdDbDatabase database;
    database.findLayer(L"0")->setColor(OdCmColor::fromIndex(static_cast<std::uint16_t>(index)));
    addLine(database, {0, 0, 0}, {100, 0, 0});
    m_canvas->setDatabase(&database);
    const wxSize size = m_canvas->GetClientSize();
    const wxColour expected(colour.toStdString());
    const auto y = static_cast<int>(std::lround(m_canvas->view().toScreen(50, 0).m_y));
    QVERIFY(waitUntil([&] { return pixel(m_canvas, size.x / 2, y) == expected; }));
    QVERIFY(pixel(m_canvas, size.x / 2, y - 2) == m_background);
    QVERIFY(pixel(m_canvas, 2, y) == m_background); // the line ends within the canvas
}

void DrawingCanvasTest::layerColourChangesWithARefresh()
{
    OdDbDatabase database;
    OdDbLayerTableRecord* layer = database.addLayer(L"Lines");
    layer->setColor(OdCmColor::fromIndex(1));
    addLine(database, {0, 0, 0}, {100, 0, 0})->setLayer(layer->objectId());
    m_canvas->setDatabase(&database);
    const wxSize size = m_canvas->GetClientSize();
    const auto y = static_cast<int>(std::lround(m_canvas->view().toScreen(50, 0).m_y));
    QVERIFY(waitUntil([&] { return pixel(m_canvas, size.x / 2, y) == wxColour(255, 0, 0); }));
    layer->setColor(OdCmColor::fromRGB(10, 200, 30));
    m_canvas->refreshDrawing();
    QVERIFY(waitUntil([&] { return pixel(m_canvas, size.x / 2, y) == wxColour(10, 200, 30); }));
}

void DrawingCanvasTest::selectedEntitiesAreLitUpAndZoomedTo()
{
    OdDbDatabase database;
    std::vector<OdDbObjectId> lines;
    for (const double y : {0.0, 30.0, 60.0})
        lines.push_back(addLine(database, {0, y, 0}, {100, y, 0})->objectId());
    m_canvas->accent = [] { return wxColour(0, 120, 215); };
    m_canvas->setDatabase(&database);
    const auto isLit = [this](double y) {
        const wxPoint2DDouble place = m_canvas->view().toScreen(50, y);
        return pixel(m_canvas, static_cast<int>(place.m_x), static_cast<int>(std::lround(place.m_y))) ==
               wxColour(0, 120, 215);
    };
    m_canvas->setHighlighted({lines[2], lines[0]});
    QVERIFY(waitUntil([&] { return isLit(0) && isLit(60); }));
    QVERIFY(!isLit(30));
    // The places of the entities stay when one is erased.
    lines[0].openObject()->erase();
    m_canvas->refreshDrawing();
    QVERIFY(waitUntil([&] { return !isLit(0); }));
    QVERIFY(isLit(60));
    m_canvas->setHighlighted({});
    QVERIFY(waitUntil([&] { return !isLit(60); }));
    QVERIFY(m_canvas->zoomTo({lines[1], lines[2]}));
    QVERIFY(isNear(m_canvas->view().center.y, 45.0, 0.01));
    QVERIFY(!m_canvas->zoomTo({lines[0]}));
    QVERIFY(!m_canvas->zoomTo(std::vector<OdDbObjectId>()));
}

void DrawingCanvasTest::zoomKeepsThePointUnderTheCursor_data()
{
    QTest::addColumn<double>("origin");
    QTest::addColumn<double>("size");
    QTest::newRow("a small drawing") << 0.0 << 100.0;
    QTest::newRow("far from the origin") << 1e7 << 20.0;
    QTest::newRow("tiny") << 0.0 << 1e-5;
}

void DrawingCanvasTest::zoomKeepsThePointUnderTheCursor()
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

void DrawingCanvasTest::wheelAndMiddleButtonMoveTheView()
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

void DrawingCanvasTest::viewStaysFittedUntilTheUserMovesIt()
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

void DrawingCanvasTest::anyDrawingFitsSanely_data()
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

void DrawingCanvasTest::anyDrawingFitsSanely()
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

void DrawingCanvasTest::coloursComeThroughInserts()
{
    OdDbDatabase database;
    OdDbLayerTableRecord* green = database.addLayer(L"Green");
    green->setColor(OdCmColor::fromIndex(3));
    OdDbLayerTableRecord* blue = database.addLayer(L"Blue");
    blue->setColor(OdCmColor::fromIndex(5));
    OdDbBlockTableRecord* inner = database.addBlock(L"Inner");
    addLine(database, {}, {1, 0, 0}, inner); // by the insert's layer
    addLine(database, {}, {1, 0, 0}, inner)->setColor(OdCmColor(OdCmColor::kByBlock));
    addLine(database, {}, {1, 0, 0}, inner)->setLayer(blue->objectId());
    addLine(database, {}, {1, 0, 0}, inner)->setColor(OdCmColor::fromIndex(2));
    OdDbBlockTableRecord* outer = database.addBlock(L"Outer");
    addInsert(database, inner, outer)->setColor(OdCmColor(OdCmColor::kByBlock));
    OdDbBlockReference* insert = addInsert(database, outer);
    insert->setLayer(green->objectId());
    insert->setColor(OdCmColor::fromIndex(6));
    QCOMPARE(colours(tessellate(database)), QString("3 6 5 2"));
    insert->setColor(OdCmColor());
    QCOMPARE(colours(tessellate(database)), QString("3 3 5 2"));
}

void DrawingCanvasTest::layersOfInsertsHideTheirParts()
{
    OdDbDatabase database;
    OdDbLayerTableRecord* layer = database.addLayer(L"Doors");
    OdDbLayerTableRecord* other = database.addLayer(L"Glass");
    OdDbBlockTableRecord* block = database.addBlock(L"Door");
    addLine(database, {}, {1, 0, 0}, block);
    addLine(database, {}, {1, 0, 0}, block)->setLayer(other->objectId());
    OdDbBlockReference* insert = addInsert(database, block);
    insert->setLayer(layer->objectId());
    insert->columnCount = 3;
    insert->columnSpacing = 10;
    QCOMPARE(tessellate(database).pieces.size(), std::size_t(6));
    QCOMPARE(tessellate(database).box.right, 21.0);
    layer->setIsOff(true);
    QCOMPARE(tessellate(database).pieces.size(), std::size_t(3)); // those on a layer of their own
    layer->setIsFrozen(true);
    QCOMPARE(tessellate(database).pieces.size(), std::size_t(0));
}

void DrawingCanvasTest::curvesReachTheirExtremes()
{
    OdDbDatabase database;
    auto* half = add<OdDbPolyline>(database); // a half circle below its chord
    half->vertices = {{{-2, 0, 0}, 1.0}, {{2, 0, 0}, 0.0}};
    Box box = tessellate(database).box;
    QVERIFY(isNear(box.bottom, -2.0, 1e-9) && isNear(box.top, 0.0, 1e-9));
    QVERIFY(isNear(box.left, -2.0, 1e-9) && isNear(box.right, 2.0, 1e-9));
    half->erase();
    auto* arc = add<OdDbArc>(database); // through the zero direction
    arc->radius = 3.0;
    arc->startAngle = -M_PI / 2;
    arc->endAngle = M_PI / 2 + 4 * M_PI;
    box = tessellate(database).box;
    QVERIFY(isNear(box.right, 3.0, 1e-9) && isNear(box.left, 0.0, 1e-9));
    arc->erase();
    auto* ellipse = add<OdDbEllipse>(database); // upright and whole
    ellipse->majorAxis = {0, 4, 0};
    ellipse->radiusRatio = 0.25;
    ellipse->endParam = 2 * M_PI;
    box = tessellate(database).box;
    QVERIFY(isNear(box.top, 4.0, 1e-9) && isNear(box.right, 1.0, 1e-9));
}

void DrawingCanvasTest::endlessBlocksComeToAnEnd()
{
    OdDbDatabase database;
    OdDbBlockTableRecord* self = database.addBlock(L"Self");
    addLine(database, {}, {1, 0, 0}, self);
    addInsert(database, self, self);
    addInsert(database, self);
    QCOMPARE(tessellate(database).pieces.size(), std::size_t(1));

    OdDbBlockTableRecord* block = database.addBlock(L"Level 0");
    addLine(database, {}, {1, 0, 0}, block);
    for (int level = 1; level <= 9; ++level) { // a thousand million lines
        OdDbBlockTableRecord* next = database.addBlock(L"Level " + std::to_wstring(level));
        for (int i = 0; i < 10; ++i)
            addInsert(database, block, next);
        block = next;
    }
    addInsert(database, block);
    OdDbBlockReference* grid = addInsert(database, self);
    grid->columnCount = grid->rowCount = 2'000'000'000;
    const Tessellation tessellation = tessellate(database);
    QVERIFY(tessellation.pieces.size() > 1000);
    QVERIFY(tessellation.pieces.size() < 5'000'000);
}

void DrawingCanvasTest::dashedLinesHaveGaps()
{
    OdDbDatabase database;
    OdDbLinetypeTableRecord* dashed = database.addLinetype(L"Dashed");
    dashed->setDashes({10.0, -10.0});
    OdDbLine* line = addLine(database, {0, 0, 0}, {100, 0, 0});
    line->setLinetype(dashed->objectId());
    line->setColor(OdCmColor::fromIndex(1));
    m_canvas->setDatabase(&database);
    const DrawingView& view = m_canvas->view();
    const auto y = static_cast<int>(std::lround(view.toScreen(0, 0).m_y));
    const auto x = [&](double unit) { return static_cast<int>(view.toScreen(unit, 0).m_x); };
    QVERIFY(waitUntil([&] { return pixel(m_canvas, x(5), y) == wxColour(255, 0, 0); }));
    QVERIFY(pixel(m_canvas, x(15), y) == m_background);
    QVERIFY(pixel(m_canvas, x(85), y) == wxColour(255, 0, 0));
    QVERIFY(pixel(m_canvas, x(95), y) == m_background);
    database.setLTSCALE(2.0);
    m_canvas->refreshDrawing();
    QVERIFY(waitUntil([&] { return pixel(m_canvas, x(25), y) == m_background; }));
    QVERIFY(pixel(m_canvas, x(15), y) == wxColour(255, 0, 0));
    m_canvas->zoomBy(0.02, wxPoint(x(50), y)); // too small to be seen: continuous
    QVERIFY(waitUntil([&] {
        for (int column = x(5) + 1; column < x(95); ++column)
            if (pixel(m_canvas, column, y) != wxColour(255, 0, 0))
                return false;
        return pixel(m_canvas, x(100) + 5, y) == m_background;
    }));
}

void DrawingCanvasTest::coloursThatWouldVanishAreMoved_data()
{
    QTest::addColumn<QList<int>>("colour");
    QTest::addColumn<int>("background");
    QTest::addColumn<bool>("stays");
    QTest::newRow("white on white") << QList<int>{255, 255, 255} << 255 << false;
    QTest::newRow("yellow on white") << QList<int>{255, 255, 0} << 255 << false;
    QTest::newRow("black on dark") << QList<int>{0, 0, 0} << 30 << false;
    QTest::newRow("the background's own grey") << QList<int>{128, 128, 128} << 128 << false;
    QTest::newRow("yellow on dark") << QList<int>{255, 255, 0} << 30 << true;
    QTest::newRow("blue on white") << QList<int>{0, 0, 255} << 255 << true;
}

void DrawingCanvasTest::coloursThatWouldVanishAreMoved()
{
    QFETCH(const QList<int>, colour);
    QFETCH(const int, background);
    const auto grey = static_cast<unsigned char>(background);
    const wxColour own(colour[0], colour[1], colour[2]);
    const wxColour shown = DrawingPainter::visibleColour(OdCmColor::fromRGB(own.Red(), own.Green(), own.Blue()),
                                                         wxColour(grey, grey, grey));
    QTEST(shown == own, "stays");
    const int distance = std::abs(shown.Red() - grey) + std::abs(shown.Green() - grey) + std::abs(shown.Blue() - grey);
    QVERIFY(distance > 90);
}

int main(int argc, char** argv)
{
    return runWxTest<DrawingCanvasTest>(argc, argv);
}
#include "tst_drawingcanvas.moc"
