#include "drawing/selection.h"
#include "health/healthcontroller.h"
#include "health/tasktraits.h"
#include "house.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/services/qttasktraitssource.h"

#include <QAbstractItemModelTester>
#include <QScopeGuard>
#include <QtTest>

using namespace workbench;
using Type = oc::dwghealth::ETaskType;
using Tasks = HealthTaskModel;

namespace {
/// The house with two layers that nothing is on, and lines without a length in the model and in the block "Door".
class Fixture : public House
{
public:
    Fixture()
    {
        database->addLayer(L"Plants")->setDescription(L"Trees and bushes");
        database->addLayer(L"Cars");
        line(0.0, database->modelSpace(), walls)->startPoint = {};
        line(0.0, block, doors);
        controller.onFixed = [this](const QString& what) {
            fixed << what;
            controller.refresh();
        };
        controller.refresh();
    }

    /// Titles and numbers of the tasks.
    QString tasks()
    {
        QStringList rows;
        for (int row = 0; row < controller.tasks()->size(); ++row)
            rows << QStringLiteral("%1 %2").arg(controller.tasks()->data(row, Qt::DisplayRole).toString(),
                                                controller.tasks()->data(row, Tasks::CountRole).toString());
        return rows.join(", ");
    }
    /// The texts of what the current task found.
    QStringList findings()
    {
        QStringList rows;
        for (int row = 0; row < controller.findings()->size(); ++row)
            rows << controller.findings()->data(row, Qt::DisplayRole).toString() + " | " +
                        controller.findings()->data(row, FindingModel::DetailRole).toString();
        return rows;
    }

    Selection selection{documents};
    HealthController controller{documents, selection};
    QStringList fixed;
    QAbstractItemModelTester tasksTester{controller.tasks(), QAbstractItemModelTester::FailureReportingMode::QtTest};
    QAbstractItemModelTester findingsTester{controller.findings(),
                                            QAbstractItemModelTester::FailureReportingMode::QtTest};
};

/// Takes all registered traits away.
void forgetTraits()
{
    class Source : public velm::dwghealth::QtTaskTraitsSource
    {
    public:
        void initTraits() override {}
        void claim(Type type) { addTraits(std::make_shared<TaskTraits>(type, TaskTraits::Texts(), true, true)); }
    };
    Source source;
    for (const Type type : {Type::EmptyLayers, Type::ZeroLengthLines})
        source.claim(type);
}

/// Says of lines that they aren't looked for, and knows no other kind.
class ReluctantSource : public velm::dwghealth::QtTaskTraitsSource
{
public:
    ReluctantSource()
    {
        addTraits(std::make_shared<TaskTraits>(Type::ZeroLengthLines,
                                               TaskTraits::Texts{"Not now", "Not yet", "Wait", ""}, false, true));
    }
    void initTraits() override {}
};
} // namespace

/// What the page of the drawing's health finds, shows and mends.
class HealthControllerTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void emptyLayersAreFoundAndRemoved()
    {
        Fixture house;
        QCOMPARE(house.tasks(), "Empty layers 2, Zero-length lines 2");
        QCOMPARE(house.findings(), QStringList({"Plants | Trees and bushes", "Cars | "}));
        QVERIFY(!house.controller.canSelect());
        QVERIFY(house.controller.canFix());
        house.controller.select();
        QVERIFY(house.selection.entities().empty());
        house.controller.fix();
        QCOMPARE(house.fixed, QStringList({"Empty layers: 2 fixed"}));
        QCOMPARE(house.tasks(), "Empty layers 0, Zero-length lines 2");
        QVERIFY(!house.database->findLayer(L"Cars"));
        QVERIFY(house.database->findLayer(L"Doors"));
        QVERIFY(house.database->findLayer(L"0"));
        house.controller.fix();
        QCOMPARE(house.fixed.size(), 1);
    }

    void aLayerThatCameToUseIsNotRemoved()
    {
        Fixture house;
        house.text->setLayer(house.database->findLayer(L"Cars")->objectId());
        house.database->setCurrentLayer(house.database->findLayer(L"Plants")->objectId());
        house.controller.fix(); // nobody has told of the change
        QVERIFY(house.database->findLayer(L"Cars"));
        QVERIFY(house.database->findLayer(L"Plants"));
        QVERIFY(house.fixed.isEmpty());
        // What only an erased entity is on, is empty.
        house.text->erase();
        house.controller.refresh();
        QCOMPARE(house.findings(), QStringList({"Cars | "}));
    }

    void linesAreFoundInBlocksToo()
    {
        Fixture house;
        QStringList commands;
        velm::ExternalFunctions functions;
        functions.processCommand = [&](const OdString& command) {
            commands << QString::fromStdWString(command.wide());
        };
        velm::setVELMExternalFunction(functions);
        const auto reset = qScopeGuard([] { velm::setVELMExternalFunction({}); });

        house.controller.setCurrentTask(1);
        QCOMPARE(house.findings(),
                 QStringList({"Line at 0.00, 0.00 | Layer Walls", "Line at 0.00, 0.00 | Layer Doors, block Door"}));
        house.controller.selectFinding(2);
        QVERIFY(house.selection.entities().empty());
        house.controller.selectFinding(1);
        QCOMPARE(house.selection.entities().size(), size_t(1));
        house.controller.select();
        QCOMPARE(house.selection.entities().size(), size_t(2));
        QCOMPARE(commands, QStringList({"ZOOM SELECTION", "ZOOM SELECTION"}));
        house.controller.fix();
        QVERIFY(house.selection.entities().empty());
        QCOMPARE(house.tasks(), "Empty layers 2, Zero-length lines 0");
        QVERIFY(!house.wall->isErased());
    }

    void whatIsOnLockedLayersStays()
    {
        Fixture house;
        OdDbLayerTableRecord* cars = house.database->findLayer(L"Cars");
        cars->setIsLocked(true); // nothing is on it that could be locked
        house.controller.fix();
        QVERIFY(!house.database->findLayer(L"Cars"));

        house.controller.setCurrentTask(1);
        house.doors->setIsLocked(true);
        house.controller.refresh();
        QCOMPARE(house.findings().last(), "Line at 0.00, 0.00 | Layer Doors (locked), block Door");
        QVERIFY(house.controller.advice().endsWith("On locked layers: 1, which stay."));
        house.controller.select();
        house.controller.fix();
        QCOMPARE(house.fixed.last(), "Zero-length lines: 1 fixed, 1 left since their layers are locked");
        QCOMPARE(house.findings().size(), 1);
        QVERIFY(house.controller.hasFindings() && house.controller.canSelect() && !house.controller.canFix());

        house.walls->setIsLocked(true);
        house.controller.select();
        house.controller.fix();
        QCOMPARE(house.fixed.last(), "Zero-length lines: 0 fixed, 1 left since their layers are locked");
        QCOMPARE(house.selection.entities().size(), size_t(1));
        house.doors->setIsLocked(false);
        house.controller.refresh();
        QVERIFY(house.controller.canFix());
        QVERIFY(!house.controller.advice().contains("locked"));
        house.controller.fix();
        QCOMPARE(house.fixed.last(), "Zero-length lines: 1 fixed");
    }

    void rowsStayWhereNothingElseIsFound()
    {
        Fixture house;
        QSignalSpy resets(house.controller.findings(), &QAbstractItemModel::modelReset);
        QSignalSpy taskResets(house.controller.tasks(), &QAbstractItemModel::modelReset);
        house.database->rename(*house.database->findLayer(L"Cars"), L"Bicycles");
        house.controller.refresh();
        QCOMPARE(resets.size(), 0);
        QCOMPARE(taskResets.size(), 0);
        QCOMPARE(house.findings().last(), "Bicycles | ");
    }

    void anotherDrawingIsLookedIntoAtOnce()
    {
        Fixture house;
        house.openAnother();
        QCOMPARE(house.tasks(), "Empty layers 0, Zero-length lines 0");
        QVERIFY(house.controller.hasDrawing());
        QVERIFY(!house.controller.canFix());
        house.close();
        QVERIFY(!house.controller.hasDrawing());
        house.controller.fix();
        house.controller.setCurrentTask(-1);
        QCOMPARE(house.controller.title(), QString());
        house.controller.select();
        QVERIFY(house.fixed.isEmpty());
    }

    void onlyKindsWithTraitsAreShown()
    {
        Fixture house;
        house.controller.setCurrentTask(1);
        forgetTraits();
        {
            ReluctantSource source;
            house.controller.refresh();
            QCOMPARE(house.tasks(), "Not now 0");
            house.controller.setCurrentTask(0);
            QCOMPARE(house.controller.description(), "Not yet");
            QCOMPARE(house.controller.advice(), "Wait");
            QVERIFY(!house.controller.isWanted());
            QVERIFY(!house.controller.canFix());
        }
        // Nobody has traits now, so the program's own sources are asked again.
        house.controller.refresh();
        QCOMPARE(house.tasks(), "Empty layers 2, Zero-length lines 2");
    }
};

QTEST_GUILESS_MAIN(HealthControllerTest)

#include "tst_healthcontroller.moc"
