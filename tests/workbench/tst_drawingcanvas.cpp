#include "canvastest.h"
#include "drawing/dxfreader.h"
#include "entities.h"

using namespace workbench;

/// What the canvas shows of a drawing.
class DrawingCanvasTest : public CanvasTest
{
    Q_OBJECT

private Q_SLOTS:
    void entitiesInViewAreCounted();
    void hiddenLayersAreNotDrawn();
    void lineHasItsColourOnScreen_data();
    void lineHasItsColourOnScreen();
    void selectedEntitiesAreLitUpAndZoomedTo();
    void everyChangeIsSeen();
    void whatFollowsTheCursorLeavesTheDrawingAlone();
    void dashedLinesHaveGaps();
    void coloursThatWouldVanishAreMoved_data();
    void coloursThatWouldVanishAreMoved();
};

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
    QVERIFY(waitUntil([&] { return pixel(size.x / 2, y) == expected; }));
    QVERIFY(pixel(size.x / 2, y - 2) == m_background);
    QVERIFY(pixel(2, y) == m_background); // the line ends within the canvas
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
        return pixel(static_cast<int>(place.m_x), static_cast<int>(std::lround(place.m_y))) == wxColour(0, 120, 215);
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
    QVERIFY(std::abs(m_canvas->view().center.y - 45.0) < 0.01);
    QVERIFY(!m_canvas->zoomTo({lines[0]}));
    QVERIFY(!m_canvas->zoomTo(std::vector<OdDbObjectId>()));
}

void DrawingCanvasTest::everyChangeIsSeen()
{
    OdDbDatabase database;
    OdDbDatabase other;
    OdDbLine* line = addLine(database, {0, 0, 0}, {100, 50, 0});
    const wxSize size = m_frame->GetSize();
    wxColour accent(0, 120, 215);
    m_canvas->accent = [&] { return accent; };
    m_canvas->setDatabase(&database);
    m_canvas->setHighlighted({line->objectId()});
    const struct
    {
        const char* name;
        std::function<void()> change;
        std::function<void()> back;
    } changes[] = {
        {"zoom", [&] { m_canvas->zoomBy(2.0, wxPoint(50, 50)); }, [&] { m_canvas->zoomExtents(); }},
        {"pan", [&] { m_canvas->panBy(wxPoint(30, 0)); }, [&] { m_canvas->zoomExtents(); }},
        {"size", [&] { m_frame->SetSize(size.x - 60, size.y); }, [&] { m_frame->SetSize(size); }},
        {"grid", [&] { m_canvas->showGrid(true); }, [&] { m_canvas->showGrid(false); }},
        {"selection", [&] { m_canvas->setHighlighted({}); }, [&] { m_canvas->setHighlighted({line->objectId()}); }},
        {"edit",
         [&] {
             line->erase();
             m_canvas->refreshDrawing();
         },
         [&] {
             line = addLine(database, {0, 0, 0}, {100, 50, 0});
             m_canvas->refreshDrawing();
             m_canvas->setHighlighted({line->objectId()});
         }},
        {"background",
         [&] {
             m_background = wxColour(250, 250, 250);
             m_canvas->Refresh();
         },
         [&] {
             m_background = wxColour(20, 20, 20);
             m_canvas->Refresh();
         }},
        {"accent",
         [&] {
             accent = wxColour(250, 120, 0);
             m_canvas->Refresh();
         },
         [&] {
             accent = wxColour(0, 120, 215);
             m_canvas->Refresh();
         }},
        {"drawing", [&] { m_canvas->setDatabase(&other); },
         [&] {
             m_canvas->setDatabase(&database);
             m_canvas->setHighlighted({line->objectId()});
         }},
    };
    QVERIFY(waitUntil([&] { return m_canvas->drawnEntityCount() == 1; }));
    const QImage before = picture();
    for (const auto& [name, change, back] : changes) {
        const std::size_t paints = m_canvas->paintCount();
        change();
        QVERIFY2(waitUntil([&] { return m_canvas->paintCount() == paints + 1 && picture() != before; }), name);
        back();
        QVERIFY2(waitUntil([&] { return picture() == before; }), name);
    }
}

void DrawingCanvasTest::whatFollowsTheCursorLeavesTheDrawingAlone()
{
    OdDbDatabase database;
    addLine(database, {0, 0, 0}, {100, 50, 0});
    m_canvas->setDatabase(&database);
    QVERIFY(waitUntil([&] { return m_canvas->drawnEntityCount() == 1; }));
    moveMouse(10, 10);
    const std::size_t paints = m_canvas->paintCount();
    const QImage before = picture();
    // Down to the cursor, along a column of pixels.
    m_canvas->rubberBand = [](const OdGePoint3d& cursor) { return std::vector{OdGePoint3d{cursor.x, 50, 0}, cursor}; };
    for (const int x : {100, 250, 251}) {
        moveMouse(x, 300);
        QVERIFY(waitUntil([&] {
            const QImage now = picture();
            return now != before && now.copy(x, 0, 1, now.height()) != before.copy(x, 0, 1, before.height()) &&
                   now.copy(0, 0, x - 3, now.height()) == before.copy(0, 0, x - 3, before.height());
        }));
    }
    m_canvas->rubberBand = {};
    m_canvas->Refresh();
    QVERIFY(waitUntil([&] { return picture() == before; }));
    QCOMPARE(m_canvas->paintCount(), paints);
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
    QVERIFY(waitUntil([&] { return pixel(x(5), y) == wxColour(255, 0, 0); }));
    QVERIFY(pixel(x(15), y) == m_background);
    QVERIFY(pixel(x(85), y) == wxColour(255, 0, 0));
    QVERIFY(pixel(x(95), y) == m_background);
    database.setLTSCALE(2.0);
    m_canvas->refreshDrawing();
    QVERIFY(waitUntil([&] { return pixel(x(25), y) == m_background; }));
    QVERIFY(pixel(x(15), y) == wxColour(255, 0, 0));
    m_canvas->zoomBy(0.02, wxPoint(x(50), y)); // too small to be seen: continuous
    QVERIFY(waitUntil([&] {
        for (int column = x(5) + 1; column < x(95); ++column)
            if (pixel(column, y) != wxColour(255, 0, 0))
                return false;
        return pixel(x(100) + 5, y) == m_background;
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
