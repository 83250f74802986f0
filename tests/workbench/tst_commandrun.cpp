#include "house.h"
#include "steps/circlecommand.h"
#include "steps/commandpanelcontroller.h"
#include "steps/commandrun.h"
#include "steps/linecommand.h"
#include "steps/typedvalues.h"
#include "support/fakehost.h"
#include "support/scopes.h"
#include "velm/bridge/conversions.h"
#include "velm/units/unitsinputcontroller.h"

#include <QPointer>
#include <QtTest>

using namespace workbench;
using velm::toQt;

namespace {
/// Keeps an eye on the controller of the panel.
class PanelHost : public velmtest::FakeGuiController
{
public:
    std::unique_ptr<velm::IHostDialog> createDialog(const QUrl& page, velm::BaseDialogController* controller,
                                                    wxWindow* parent, const velm::DialogOptions& options,
                                                    void* context) override
    {
        panel = qobject_cast<CommandPanelController*>(controller);
        dialogs = {{}};
        return FakeGuiController::createDialog(page, controller, parent, options, context);
    }

    QPointer<CommandPanelController> panel;
};

class Fixture : public House
{
public:
    Fixture()
    {
        for (OdDbEntity* entity : std::initializer_list<OdDbEntity*>{wall, circle, insert, text})
            entity->erase();
        run.log = [this](const wxString& line) { log << toQt(line); };
        run.onDrawingChanged = [this] { ++changes; };
        run.onEnded = [this] { ends << (host.panel ? "with the panel" : "too late"); };
    }

    static velm::ExternalFunctions functions(CommandRun& run)
    {
        velm::ExternalFunctions result;
        result.processEnter = [&run] { run.enter(); };
        result.processEscape = [&run] { run.escape(); };
        result.processCommand = [&run](const OdString& line) { run.takeLine(line.c_str()); };
        return result;
    }
    template <typename Command>
    void start(const wxString& line = {})
    {
        run.start(std::make_unique<Command>(*database));
        if (!line.empty())
            run.takeLine(line);
    }
    void start(const QString& name, const QString& line)
    {
        if (name == "LINE")
            start<LineCommand>(velm::wxFromQt(line));
        else
            start<CircleCommand>(velm::wxFromQt(line));
    }
    /// What has been drawn, as "0,0-3,4 (5,5)2".
    QString drawn() const
    {
        QStringList result;
        for (const OdDbObjectId& id : database->modelSpace()->entities()) {
            if (const auto* line = id.open<OdDbLine>())
                result << place(line->startPoint) + '-' + place(line->endPoint);
            if (const auto* drawnCircle = id.open<OdDbCircle>())
                result << '(' + place(drawnCircle->center) + ')' + QString::number(drawnCircle->radius);
        }
        return result.join(' ');
    }
    QString lastLog() const { return log.isEmpty() ? QString() : log.last(); }

    static QString place(const OdGePoint3d& point) { return QString("%1,%2").arg(point.x).arg(point.y); }

    QStringList log;
    QStringList ends;
    int changes = 0;
    PanelHost host;
    CommandRun run{documents, host};
    velmtest::ScopedExternalFunctions scope{functions(run)};
};
} // namespace

/// Commands that run in steps, and what becomes of them when they are interrupted.
class CommandRunTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void pointsAreRead_data();
    void pointsAreRead();
    void linesGoFromPointToPoint();
    void aLineIsClosedOrTakenBack();
    void circlesHaveARadiusOrADiameter();
    void newEntitiesGetTheCurrentProperties();
    void optionsAndValuesAreTyped_data();
    void optionsAndValuesAreTyped();
    void aCommandMayEndAtEveryStep_data();
    void aCommandMayEndAtEveryStep();
    void thePanelFollowsTheSteps();
    void thePanelSpeaksToTheCommandLine();
    void whatAClosedPanelSaidIsntHeard();
    void pickingDisablesThePanel();
    void theEndOfACommandMayStartAnother();
    void whatAnotherCommandErasedCanBeUndone();
    void theProgramMayEndWhileACommandRuns();
};

void CommandRunTest::pointsAreRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("hasBase");
    QTest::addColumn<QString>("point");
    const auto row = [](const char* name, const char* text, bool hasBase, const char* point) {
        QTest::newRow(name) << QString::fromUtf8(text) << hasBase << QString::fromUtf8(point);
    };
    row("two coordinates", "3,-4.5", false, "3,-4.5");
    row("blanks around them", " 3 , 4 ", true, "3,4");
    row("the base doesn't matter without the mark", "3,4", true, "3,4");
    row("from the base", "@1,-2", true, "11,18");
    row("the mark alone has a blank behind it", "@ 1,2", true, "11,22");
    row("feet and inches", "1'-2 1/2\",2'", false, "14.5,24");
    row("a base that isn't there", "@1,2", false, "");
    row("one coordinate", "3", true, "");
    row("nothing before the comma", ",4", true, "");
    row("nothing behind the comma", "3,", true, "");
    row("three coordinates", "1,2,3", true, "");
    row("no number", "nan,0", true, "");
    row("no end", "inf,0", true, "");
    row("more than a number holds", "1e400,0", true, "");
    row("farther than a drawing goes", "2000000000,0", true, "");
    row("something behind the number", "3,4x", true, "");
    row("letters that look like digits", "3,\u0664", true, "");
    row("nothing", "", true, "");
}

void CommandRunTest::pointsAreRead()
{
    QFETCH(const QString, text);
    QFETCH(const bool, hasBase);
    QFETCH(const QString, point);
    const auto read = typedPoint(velm::wxFromQt(text), OdUnitsFormatter(),
                                 hasBase ? std::optional(OdGePoint3d{10.0, 20.0}) : std::nullopt);
    QCOMPARE(read ? Fixture::place(*read) : QString(), point);
}

void CommandRunTest::linesGoFromPointToPoint()
{
    Fixture house;
    house.start<LineCommand>();
    QCOMPARE(house.log, QStringList("LINE  First point"));
    QCOMPARE(house.changes, 0);
    QVERIFY(house.run.preview({9, 9}).empty());
    QVERIFY(house.run.takePoint({0, 0}));
    QCOMPARE(house.lastLog(), QString("LINE  Next point [Undo]"));
    const std::vector<OdGePoint3d> band = house.run.preview({9, 8});
    QCOMPARE(band.size(), std::size_t(2));
    QCOMPARE(Fixture::place(band.back()), QString("9,8"));
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
    Fixture house;
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
    Fixture house;
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
    Fixture house;
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
    Fixture house;
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
    Fixture house;
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

void CommandRunTest::thePanelFollowsTheSteps()
{
    Fixture house;
    house.start<LineCommand>();
    CommandPanelController& panel = *house.host.panel;
    QCOMPARE(panel.prompt(), QString("First point"));
    QCOMPARE(panel.options(), QStringList({"Undo", "Close"}));
    QVERIFY(panel.enabledOptions().isEmpty() && !panel.hasBase() && panel.asksForPoint());
    house.run.takeLine("3,4");
    QCOMPARE(panel.prompt(), QString("Next point"));
    QCOMPARE(panel.enabledOptions(), QStringList("Undo"));
    QVERIFY(panel.hasBase());
    // The fields begin with the last point, or at a distance of nothing from it.
    QCOMPARE(panel.x()->property("value"), QVariant(3.0));
    QCOMPARE(panel.y()->property("value"), QVariant(4.0));
    panel.setRelative(true);
    QCOMPARE(panel.x()->property("value"), QVariant(0.0));
    house.start<CircleCommand>("3,4");
    QVERIFY(!house.host.panel->asksForPoint());
}

void CommandRunTest::thePanelSpeaksToTheCommandLine()
{
    Fixture house;
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

void CommandRunTest::whatAClosedPanelSaidIsntHeard()
{
    Fixture house;
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

void CommandRunTest::pickingDisablesThePanel()
{
    Fixture house;
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

void CommandRunTest::theEndOfACommandMayStartAnother()
{
    Fixture house;
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
    Fixture house;
    house.start<LineCommand>("0,0;1,0;2,0");
    house.database->modelSpace()->entities().last().open<OdDbEntity>()->erase();
    house.run.takeLine("u;u");
    QCOMPARE(house.drawn(), QString());
    QCOMPARE(house.lastLog(), QString("LINE  Next point [Undo]"));
}

void CommandRunTest::theProgramMayEndWhileACommandRuns()
{
    QStringList ends;
    {
        Fixture house;
        house.run.onEnded = [&] { ends << "told"; };
        house.start<LineCommand>("0,0;1,0");
        house.host.panel->pick();
        house.host.panel->accept();
    }
    QCoreApplication::processEvents();
    QVERIFY(ends.isEmpty());
}

QTEST_GUILESS_MAIN(CommandRunTest)

#include "tst_commandrun.moc"
