#include "commandhouse.h"

using namespace workbench;

/// What the panel of a running command tells it, and when it is no longer heard.
class CommandPanelCallsTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void thePanelSpeaksToTheCommandLine();
    void whatAClosedPanelSaidIsntHeard();
    void pickingDisablesThePanel();
    void theProgramMayEndWhileACommandRuns();
};

void CommandPanelCallsTest::thePanelSpeaksToTheCommandLine()
{
    CommandHouse house;
    house.start<LineCommand>();
    CommandPanelController& panel = *house.host.panel;
    const auto enter = [&](double x, double y) {
        panel.x()->setProperty("value", x);
        panel.y()->setProperty("value", y);
        panel.enterValues();
        QCoreApplication::processEvents();
    };
    panel.setRelative(true); // of which there is nothing yet
    enter(1.0 / 3, 1e6);
    enter(1, 2);
    const auto* line = house.database->modelSpace()->entities().last().open<OdDbLine>();
    QVERIFY(line);
    QCOMPARE(line->startPoint.x, 1.0 / 3);
    QCOMPARE(line->endPoint.x, 1.0 / 3 + 1);
    QCOMPARE(line->endPoint.y, 1e6 + 2);
    panel.chooseOption("Undo");
    QVERIFY(!house.drawn().isEmpty());
    QCoreApplication::processEvents();
    QVERIFY(house.drawn().isEmpty());
    panel.accept();
    QVERIFY(house.run.isRunning());
    QCoreApplication::processEvents();
    QVERIFY(!house.run.isRunning());

    house.start<CircleCommand>("1,1");
    house.host.panel->length()->setProperty("value", 2.5);
    house.host.panel->enterValues();
    QCoreApplication::processEvents();
    QCOMPARE(house.drawn(), QString("(1,1)2.5"));

    house.start<CircleCommand>();
    house.host.panel->closeClick();
    QCoreApplication::processEvents();
    QCOMPARE(house.lastLog(), QString("Cancelled: CIRCLE"));
}

void CommandPanelCallsTest::whatAClosedPanelSaidIsntHeard()
{
    CommandHouse house;
    house.start<LineCommand>("0,0;1,0");
    house.host.panel->chooseOption("Undo");
    house.host.panel->enterValues();
    house.host.panel->accept();
    house.host.panel->closeClick();
    // Another command gets nothing of it.
    house.start<LineCommand>("5,5;6,5");
    QCoreApplication::processEvents();
    QVERIFY(house.run.isRunning());
    QCOMPARE(house.drawn(), QString("0,0-1,0 5,5-6,5"));

    // The first of two calls ends the command, and the panel with it.
    house.host.panel->accept();
    house.host.panel->chooseOption("Undo");
    QCoreApplication::processEvents();
    QVERIFY(!house.run.isRunning());
    QCOMPARE(house.drawn(), QString("0,0-1,0 5,5-6,5"));
}

void CommandPanelCallsTest::pickingDisablesThePanel()
{
    CommandHouse house;
    int picks = 0;
    house.run.onPicking = [&] { ++picks; };
    house.start<LineCommand>();
    CommandPanelController& panel = *house.host.panel;
    panel.pick();
    QCOMPARE(picks, 1);
    QVERIFY(house.run.isPicking() && !panel.getPanelEnabled());
    house.run.takePoint({1, 1});
    QVERIFY(!house.run.isPicking() && panel.getPanelEnabled());

    // Again while the person picks already.
    panel.pick();
    panel.pick();
    QVERIFY(house.run.isPicking() && !panel.getPanelEnabled());

    // What the command refuses leaves the person picking; what is typed will do as well.
    panel.pick();
    house.run.takePoint({1, 1});
    QVERIFY(!panel.getPanelEnabled());
    house.run.takeLine("2,2");
    QVERIFY(panel.getPanelEnabled());

    // Escape leaves the picking, and only then the command.
    panel.pick();
    QVERIFY(house.run.escape());
    QVERIFY(house.run.isRunning() && panel.getPanelEnabled());
    panel.pick();
    house.close();
    QVERIFY(!house.run.isRunning() && !house.run.isPicking());
}

void CommandPanelCallsTest::theProgramMayEndWhileACommandRuns()
{
    QStringList ends;
    {
        CommandHouse house;
        house.run.onEnded = [&] { ends << "told"; };
        house.start<LineCommand>("0,0;1,0");
        house.host.panel->pick();
        house.host.panel->accept();
    }
    QCoreApplication::processEvents();
    QVERIFY(ends.isEmpty());
}

QTEST_GUILESS_MAIN(CommandPanelCallsTest)

#include "tst_commandpanelcalls.moc"
