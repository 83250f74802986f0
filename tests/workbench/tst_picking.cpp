#include "drawing/grid.h"
#include "drawing/picking.h"
#include "drawing/selection.h"
#include "support/table.h"

#include <QSignalSpy>
#include <QtTest>

#include <cmath>

using namespace workbench;

/// What a click on the canvas finds, without a canvas.
class PickingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_database = std::make_unique<OdDbDatabase>(); }

    void theNearestEntityIsPicked_data()
    {
        const auto row = velmtest::columns<double, double, int>("x", "y", "entity");
        row("on the line", 50.0, 0.0, 0);
        row("beside the line, nearer to it than to the circle", 20.9, 0.4, 0);
        row("beside the line, nearer to the circle", 20.1, 0.9, 1);
        row("just within the tolerance", 50.0, -0.99, 0);
        row("just out of the tolerance", 50.0, -1.01, -1);
        row("past the line's end by less than the tolerance", 100.6, 0.6, 0);
        row("past the line's end, within the tolerance of its box only", 100.8, 0.8, -1);
        row("inside the circle, far from its line", 5.0, 5.0, -1);
        row("on the circle between the points of its chain", 20 * std::cos(1.234), 20 * std::sin(1.234), 1);
        row("beside the point", 60.4, 40.4, 2);
        row("beside a line of no length", 80.0, 80.5, 3);
    }
    void theNearestEntityIsPicked()
    {
        QFETCH(const double, x);
        QFETCH(const double, y);
        addLine({0, 0, 0}, {100, 0, 0});
        add<OdDbCircle>()->radius = 20.0;
        add<OdDbPoint>()->position = {60, 40, 0};
        addLine({80, 80, 0}, {80, 80, 0});
        QTEST(pick(x, y), "entity");
    }

    void whatIsDrawnLastIsOnTop()
    {
        for (int i = 0; i < 3; ++i)
            addLine({0, 0, 0}, {100, 0, 0});
        QCOMPARE(pick(50, 0.5), 2);
    }

    void hiddenAndErasedEntitiesAreNotPicked()
    {
        addLine({0, 0, 0}, {100, 0, 0});
        OdDbLine* hidden = addLine({0, 0, 0}, {100, 0, 0});
        OdDbLine* erased = addLine({0, 0, 0}, {100, 0, 0});
        hidden->setLayer(m_database->addLayer(L"Hidden")->objectId());
        m_database->findLayer(L"Hidden")->setIsOff(true);
        QCOMPARE(pick(50, 0), 2);
        erased->erase();
        QCOMPARE(pick(50, 0), 0);
    }

    void aPartOfABlockStandsForItsInsert()
    {
        OdDbBlockTableRecord* block = m_database->addBlock(L"Part");
        addLine({0, 0, 0}, {1, 0, 0}, block);
        addLine({0, 500, 0}, {1, 500, 0});
        auto* insert = add<OdDbBlockReference>();
        insert->blockTableRecord = block->objectId();
        insert->position = {100, 100, 0};
        insert->scaleFactors = {50, 50, 50};
        QCOMPARE(pick(125, 100.5), 1);
        QCOMPARE(pick(0.5, 0), -1);
    }

    void aTurnedTextIsMetOnItsLettersOnly()
    {
        auto* text = add<OdDbText>();
        text->textString = L"standing on its end";
        text->height = 10.0;
        text->position = {50, 50, 0};
        text->rotation = std::numbers::pi / 4;
        addLine({0, 0, 0}, {10, 0, 0});
        QCOMPARE(pick(100, 105), 0);
        // Within the upright box around it.
        QCOMPARE(pick(100, 55), -1);
        QCOMPARE(pick(40, 40), -1);
        // A line through it is what is meant.
        addLine({100, 0, 0}, {100, 200, 0});
        QCOMPARE(pick(100.5, 105), 2);
    }

    void theGridFollowsTheZoom_data()
    {
        const auto row = velmtest::columns<double, double>("scale", "spacing");
        row("a pixel a unit", 1.0, 20.0);
        row("spacing that is just wide enough", 14.0, 1.0);
        row("a hair's breadth farther away", 13.999, 2.0);
        row("close up", 3000.0, 0.005);
        row("a map", 1e-6, 2e7);
    }
    void theGridFollowsTheZoom()
    {
        QFETCH(const double, scale);
        QFETCH(const double, spacing);
        QVERIFY2(qFuzzyCompare(gridSpacing(scale), spacing), qPrintable(QString::number(gridSpacing(scale))));
    }

    void aPointSnapsToTheNearestPointOfTheGrid()
    {
        const OdGePoint3d point = onGrid({12.4, -7.6, 3.0}, 5.0);
        QCOMPARE(point.x, 10.0);
        QCOMPARE(point.y, -10.0);
        QVERIFY(!std::signbit(onGrid({-0.1, 0, 0}, 5.0).x));
    }

    void theSelectionGoesWithItsDrawing()
    {
        OdApDocManager documents;
        Selection selection(documents);
        const auto open = [&] {
            return documents.open(std::make_unique<OdApDocument>(L"drawing", std::make_unique<OdDbDatabase>()));
        };
        const auto select = [&](OdApDocument* document) {
            OdDbDatabase* database = document->database();
            selection.set(database->addEntity(std::make_unique<OdDbLine>(), database->modelSpace())->objectId());
        };
        OdApDocument* first = open();
        select(first);
        QVERIFY(!selection.current().isNull());

        QSignalSpy changed(&selection, &Selection::changed);
        OdApDocument* second = open();
        QVERIFY(selection.current().isNull());
        QCOMPARE(changed.size(), 1);

        // A drawing behind the current one takes nothing with it.
        select(second);
        documents.close(first);
        QVERIFY(!selection.current().isNull());
        selection.set(selection.current());
        QCOMPARE(changed.size(), 2);
        documents.close(second);
        QVERIFY(selection.current().isNull());
        QCOMPARE(changed.size(), 3);
    }

    void anErasedEntityIsNoSelection()
    {
        OdApDocManager documents;
        Selection selection(documents);
        OdDbLine* line = addLine({0, 0, 0}, {1, 1, 0});
        selection.set(line->objectId());
        QCOMPARE(selection.current(), line->objectId());
        line->erase();
        QVERIFY(selection.current().isNull());
    }

private:
    template <typename T>
    T* add(OdDbBlockTableRecord* block = nullptr)
    {
        return m_database->addEntity(std::make_unique<T>(), block ? block : m_database->modelSpace());
    }
    OdDbLine* addLine(OdGePoint3d from, OdGePoint3d to, OdDbBlockTableRecord* block = nullptr)
    {
        auto* line = add<OdDbLine>(block);
        line->startPoint = from;
        line->endPoint = to;
        return line;
    }
    /// The number of the picked entity, or -1.
    int pick(double x, double y) const
    {
        const auto entity = pickEntity(tessellate(*m_database), x, y, 1.0);
        return entity ? static_cast<int>(*entity) : -1;
    }

    std::unique_ptr<OdDbDatabase> m_database;
};

QTEST_GUILESS_MAIN(PickingTest)
#include "tst_picking.moc"
