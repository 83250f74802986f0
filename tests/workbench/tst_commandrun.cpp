#include "commandhouse.h"

using namespace workbench;

/// Commands that run in steps, and what becomes of them when they are interrupted.
class CommandRunTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void linesGoFromPointToPoint();
    void aLineIsClosedOrTakenBack();
    void circlesHaveARadiusOrADiameter();
    void newEntitiesGetTheCurrentProperties();
    void optionsAndValuesAreTyped_data();
    void optionsAndValuesAreTyped();
    void aCommandMayEndAtEveryStep_data();
    void aCommandMayEndAtEveryStep();
    void theEndOfACommandMayStartAnother();
    void whatAnotherCommandErasedCanBeUndone();
};

void CommandRunTest::linesGoFromPointToPoint()
{
    CommandHouse house;
    house.start<LineCommand>();
    QCOMPARE(house.log, QStringList("LINE  First point"));
    QCOMPARE(house.changes, 0);
    QVERIFY(house.run.preview({9, 9}).empty());
    QVERIFY(house.run.takePoint({0, 0}));
    QCOMPARE(house.lastLog(), QString("LINE  Next point [Undo]"));
    const std::vector<OdGePoint3d> band = house.run.preview({9, 8});
    QCOMPARE(band.size(), std::size_t(2));
    QCOMPARE(CommandHouse::place(band.back()), QString("9,8"));
    QVERIFY(house.run.takeLine("3,4"));
    QVERIFY(house.run.takeLine("3,4"));
    QVERIFY(house.lastLog().contains("can't be where"));
    QVERIFY(house.run.takeLine("@1,0"));
    QCOMPARE(house.lastLog(), QString("LINE  Next point [Undo/Close]"));
    house.run.enter();
    QCOMPARE(house.drawn(), QString("0,0-3,4 3,4-4,4"));
    QCOMPARE(house.changes, 2);
    QCOMPARE(house.ends, QStringList("with the panel"));
    QVERIFY(!house.run.takePoint({1, 1}));
    QVERIFY(!house.run.takeLine("1,1"));
    QVERIFY(!house.run.escape());
}

void CommandRunTest::aLineIsClosedOrTakenBack()
{
    CommandHouse house;
    house.start<LineCommand>("0,0;3,0;3,4;u;3,5");
    QCOMPARE(house.drawn(), QString("0,0-3,0 3,0-3,5"));
    house.run.takeLine("_Close");
    QCOMPARE(house.drawn(), QString("0,0-3,0 3,0-3,5 3,5-0,0"));
    QVERIFY(!house.run.isRunning());

    // Back to before the first point.
    house.start<LineCommand>("9,9;8,8;u;u");
    QCOMPARE(house.lastLog(), QString("LINE  First point"));
    house.run.takeLine("u");
    QCOMPARE(house.lastLog(), QString("Undo isn't possible yet."));
    house.run.enter();
    QCOMPARE(house.drawn(), QString("0,0-3,0 3,0-3,5 3,5-0,0"));

    // Closing what is closed adds no line without length.
    house.start<LineCommand>("1,1;2,1;1,1;c");
    QCOMPARE(house.drawn().section(' ', 3), QString("1,1-2,1 2,1-1,1"));
}

void CommandRunTest::circlesHaveARadiusOrADiameter()
{
    CommandHouse house;
    house.start<CircleCommand>("5,5;2");
    house.start<CircleCommand>("5,5;d;2");
    house.start<CircleCommand>("5,5;8,9"); // a point to measure to
    house.start<CircleCommand>("0,0;@0,3");
    house.start<CircleCommand>("1,1;d");
    QCOMPARE(house.lastLog(), QString("CIRCLE  Diameter"));
    QCOMPARE((house.run.preview({1, 5}).front() - OdGePoint3d{1, 1}).length(), 2.0);
    house.run.takePoint({1, 5});
    const QString circles("(5,5)2 (5,5)1 (5,5)5 (0,0)3 (1,1)2");
    QCOMPARE(house.drawn(), circles);

    house.start<CircleCommand>("5,5;0");
    QCOMPARE(house.lastLog(), QString("A radius is above zero."));
    house.run.takePoint({5, 5});
    QVERIFY(house.run.isRunning());
    house.run.escape();
    QCOMPARE(house.lastLog(), QString("Cancelled: CIRCLE"));
    QCOMPARE(house.drawn(), circles);
}

void CommandRunTest::newEntitiesGetTheCurrentProperties()
{
    CommandHouse house;
    const OdDbLinetypeTableRecord* dashed = house.database->addLinetype(L"Dashed");
    house.database->setCurrentLayer(house.doors->objectId());
    house.database->setCECOLOR(OdCmColor::fromIndex(3));
    house.database->setCELTYPE(dashed->objectId());
    house.database->setCELWEIGHT(50);
    house.start<CircleCommand>("0,0;1");
    house.database->setCELTYPE(house.database->findLinetype(L"ByLayer")->objectId());
    house.start<CircleCommand>("0,0;2");
    const OdArray<OdDbObjectId>& all = house.database->modelSpace()->entities();
    const auto* first = all[all.size() - 2].open<OdDbEntity>();
    QCOMPARE(first->layerId(), house.doors->objectId());
    QVERIFY(first->color() == OdCmColor::fromIndex(3));
    QCOMPARE(first->linetypeId(), dashed->objectId());
    QCOMPARE(first->lineWeight(), 50);
    QVERIFY(all.last().open<OdDbEntity>()->linetypeId().isNull());
}

void CommandRunTest::optionsAndValuesAreTyped_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("drawn");
    QTest::addColumn<QString>("lastLog");
    QTest::newRow("the whole keyword") << "undo"
                                       << "0,0-1,0"
                                       << "LINE  Next point [Undo]";
    QTest::newRow("the global keyword") << "_Undo"
                                        << "0,0-1,0"
                                        << "LINE  Next point [Undo]";
    QTest::newRow("its beginning") << "CLO"
                                   << "0,0-1,0 1,0-1,1 1,1-0,0"
                                   << "";
    QTest::newRow("nothing between two values is Enter, and the rest goes nowhere") << "5,5;;6,6"
                                                                                    << "0,0-1,0 1,0-1,1 1,1-5,5"
                                                                                    << "";
    QTest::newRow("what is wrong stops the rest") << "5,5;x;6,6"
                                                  << "0,0-1,0 1,0-1,1 1,1-5,5"
                                                  << "This is no point. A point is written as 3,4, or as @3,4 from "
                                                     "the last one.";
    QTest::newRow("more than the keyword isn't taken") << "undone"
                                                       << "0,0-1,0 1,0-1,1"
                                                       << "not taken";
    QTest::newRow("a mark without a keyword isn't taken") << "_"
                                                          << "0,0-1,0 1,0-1,1"
                                                          << "not taken";
    QTest::newRow("another command isn't taken") << "ZOOM"
                                                 << "0,0-1,0 1,0-1,1"
                                                 << "not taken";
}

void CommandRunTest::optionsAndValuesAreTyped()
{
    QFETCH(const QString, line);
    QFETCH(const QString, drawn);
    QFETCH(const QString, lastLog);
    CommandHouse house;
    house.start<LineCommand>("0,0;1,0;1,1");
    const bool taken = house.run.takeLine(velm::wxFromQt(line));
    QCOMPARE(house.drawn(), drawn);
    QCOMPARE(taken, lastLog != "not taken");
    if (taken && !lastLog.isEmpty())
        QCOMPARE(house.lastLog(), lastLog);
    QCOMPARE(house.run.isRunning(), !lastLog.isEmpty());
}

void CommandRunTest::aCommandMayEndAtEveryStep_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("drawn");
    QTest::addColumn<QString>("how");
    for (const char* how : {"escape", "enter", "close the drawing", "go to another drawing", "start another command"}) {
        const auto row = [how](const char* name, const char* line, const char* drawn) {
            QTest::addRow("%s %s, then %s", name, line, how) << name << line << drawn << how;
        };
        row("LINE", "", "");
        row("LINE", "0,0", "");
        row("LINE", "0,0;1,0", "0,0-1,0");
        row("LINE", "0,0;1,0;u", "");
        row("CIRCLE", "", "");
        row("CIRCLE", "0,0", "");
        row("CIRCLE", "0,0;d", "");
    }
}

void CommandRunTest::aCommandMayEndAtEveryStep()
{
    QFETCH(const QString, name);
    QFETCH(const QString, line);
    QFETCH(const QString, drawn);
    QFETCH(const QString, how);
    CommandHouse house;
    OdApDocument* document = house.documents.curDocument();
    house.start(name, line);
    const QPointer<CommandPanelController> panel = house.host.panel;
    house.host.log.clear();
    QCOMPARE(house.drawn(), drawn);
    if (how == "escape")
        house.run.escape();
    else if (how == "enter")
        house.run.enter();
    else if (how == "close the drawing")
        house.documents.close(document);
    else if (how == "go to another drawing")
        house.documents.open(std::make_unique<OdApDocument>(L"/b.dxf", std::make_unique<OdDbDatabase>()));
    else
        house.start<LineCommand>();
    QVERIFY(!panel);
    QCOMPARE(house.host.log.mid(0, 2), QStringList({"removeContextDialog", "destroyed"}));
    QCOMPARE(house.ends.size(), 1);
    QCOMPARE(house.log.contains("Cancelled: " + name), how != "enter");
    QCOMPARE(house.run.isRunning(), how == "start another command");
    if (how != "close the drawing")
        QCOMPARE(house.drawn(), drawn);
}

void CommandRunTest::theEndOfACommandMayStartAnother()
{
    CommandHouse house;
    house.run.onEnded = [&] {
        house.run.onEnded = nullptr;
        house.start<CircleCommand>();
    };
    house.start<LineCommand>("0,0;1,0");
    const QPointer<CommandPanelController> former = house.host.panel;
    house.run.enter();
    QVERIFY(!former && house.host.panel && house.run.isRunning());
    house.host.panel->pick();
    QVERIFY(house.run.isPicking());
    house.run.takeLine("5,5;2");
    QCOMPARE(house.drawn(), QString("0,0-1,0 (5,5)2"));
    QVERIFY(!house.host.panel);
}

void CommandRunTest::whatAnotherCommandErasedCanBeUndone()
{
    CommandHouse house;
    house.start<LineCommand>("0,0;1,0;2,0");
    house.database->modelSpace()->entities().last().open<OdDbEntity>()->erase();
    house.run.takeLine("u;u");
    QCOMPARE(house.drawn(), QString());
    QCOMPARE(house.lastLog(), QString("LINE  Next point [Undo]"));
}

QTEST_GUILESS_MAIN(CommandRunTest)

#include "tst_commandrun.moc"
