#include "linetypecombo.h"

#include "support/members.h"
#include "support/rowmirror.h"
#include "support/signallog.h"
#include "support/table.h"

#include <QTest>

#include <limits>

using namespace linetypecombo;
using velmtest::SignalLog;

namespace {
constexpr int badRows[] = {-2, -1, 1000, INT_MAX, INT_MIN};
} // namespace

class TestLineTypeModel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void itShowsItselfToPages()
    {
        QCOMPARE(velmtest::members(LineTypeModel::staticMetaObject),
                 "signal: currentIndexChanged() slot: showLoadLineTypesDialog(int,velm::QtWindowParent*) "
                 "showLoadLineTypesDialog(int) getIndexFromLocalName(QString) getLocalName(int) "
                 "setCurrentIndexOrLoad(int) property: currentIndex tooltip! size!");
        QCOMPARE(velmtest::members(ILineTypeModel::staticMetaObject),
                 "signal: currentLineTypeChanged() slot: getIndexFromLocalName(QString)");
        QCOMPARE(velmtest::members(LineTypeObject::staticMetaObject),
                 "slot: lineTypePreview(int,int) property: lineTypeName!");
        Fixture fixture;
        const auto model = fixture.model();
        QCOMPARE(model->roleNames(), (QHash<int, QByteArray>{{0, "object"}, {256, "display"}}));
        QCOMPARE(model->property("size"), QSize(60, 8));
        const auto* row = model->index(2, 0).data(0).value<LineTypeObject*>();
        QCOMPARE(row->property("lineTypeName"), "continuous");
        QCOMPARE(row->id(), fixture.id("Continuous"));
        for (const int role : {1, 255, 257})
            QVERIFY(!model->index(0, 0).data(role).isValid());
    }

    void theRowsOfADrawing()
    {
        Fixture fixture;
        const auto model = fixture.model();
        QCOMPARE(text(*model), "byblock* bylayer continuous Load...");
        // The varies row and that of the properties come with the next rebuild only.
        model->setIsVaries(true);
        model->setPropertiesAction([] {});
        QCOMPARE(text(*model), "byblock* bylayer continuous Load...");
        fixture.database->addLinetype(L"DOT");
        QVERIFY(model->refresh(false, {}));
        QCOMPARE(text(*model), "byblock bylayer continuous dot *Varies** Load... Properties...");
        model->setIsVaries(false);
        model->setPropertiesAction({});
        QVERIFY(model->refresh(false, fixture.id("DOT")));
        QCOMPARE(text(*model), "byblock* bylayer continuous dot Load...");
        // What doesn't open as a linetype is skipped.
        fixture.database->addLinetype(L"GONE")->erase();
        fixture.first = {OdDbObjectId(), fixture.database->currentLayer(), OdDbObjectId(fixture.database.get(), 999),
                         fixture.id("DOT")};
        fixture.id("DOT").openObject()->erase();
        QCOMPARE(text(*fixture.model()), "byblock* bylayer continuous Load...");
        fixture.first = {};
        // A drawing without linetypes still lets a person load some.
        for (OdDbLinetypeTableRecord* record : fixture.database->linetypes())
            record->erase();
        const auto bare = fixture.model();
        QCOMPARE(text(*bare), "Load...*");
        QVERIFY(!bare->refresh(false, {}));
        fixture.succeeds = false;
        QCOMPARE(text(*fixture.model()), "");
        fixture.database.reset();
        fixture.listed.clear();
        QCOMPARE(text(*fixture.model()), "");
        QCOMPARE(fixture.listed, QStringList());
        // The host's list lives as long as its ids are used.
        QCOMPARE(fixture.namedTooLate, 0);
    }

    void theHostHearsTheOptionsNegated()
    {
        Fixture fixture;
        fixture.model(0, 0);
        fixture.model(2, 0);
        fixture.model(0, -1)->refresh(false, fixture.id("ByLayer"));
        QCOMPARE(fixture.listed, QStringList({"1 - 1", "1 - 0", "0 - 1", "0 id 1", "0 id 1"}));
    }

    void aRefreshKeepsTheCurrentRow()
    {
        Fixture fixture;
        const auto model = fixture.model();
        model->setCurrentLineType(fixture.id("Continuous"));
        SignalLog log(*model);
        QVERIFY(!model->refresh(false, {}));
        QCOMPARE(log.take(), "");
        // With an id it builds the rows anew without a change.
        QVERIFY(model->refresh(false, fixture.id("ByLayer")));
        QCOMPARE(log.take(), reset);
        fixture.id("ByBlock").openObject()->erase();
        QVERIFY(model->refresh(true, {}));
        QCOMPARE(log.take(), "currentIndexChanged"); // the caller of a batch resets
        QCOMPARE(text(*model), "bylayer continuous* Load...");
        fixture.id("Continuous").openObject()->erase();
        QVERIFY(model->setDatabase(false, fixture.database.get()));
        QCOMPARE(log.take(), resetWithRow);
        QCOMPARE(text(*model), "bylayer* Load...");
        QVERIFY(!model->setDatabase(false, fixture.database.get()));
        fixture.succeeds = false;
        QVERIFY(!model->refresh(false, {}));
        QCOMPARE(log.take(), "");
    }

    void theHostSelects()
    {
        Fixture fixture;
        const auto model = fixture.model();
        const OdDbObjectId erased = fixture.database->addLinetype(L"GONE")->objectId();
        erased.openObject()->erase();
        SignalLog log(*model);
        QVERIFY(model->setCurrentLineType(fixture.id("ByLayer")));
        QCOMPARE(log.take(), "currentIndexChanged");
        QVERIFY(model->setCurrentLineType(fixture.id("ByLayer")));
        QCOMPARE(log.take(), "");
        model->selectLineType(fixture.id("ByLayer"));
        QCOMPARE(log.take(), "currentLineTypeChanged"); // in any case
        model->selectLineType(fixture.id("Continuous"));
        QCOMPARE(log.take(), chosen);
        for (const OdDbObjectId& id : {OdDbObjectId(), erased, fixture.database->currentLayer()}) {
            QVERIFY(!model->setCurrentLineType(id));
            model->selectLineType(id);
        }
        QCOMPARE(log.take(), "");
        QCOMPARE(model->getCurrentIndex(), 2);
        QCOMPARE(model->indexOf(fixture.id("ByLayer")), std::optional(1));
        QCOMPARE(model->indexOf(erased), std::nullopt);
    }

    void aVaryingModelSelectsItsVariesRow()
    {
        Fixture fixture;
        const auto model = fixture.model();
        const OdDbObjectId byLayer = fixture.id("ByLayer");
        SignalLog log(*model);
        model->setIsVaries(true);
        QVERIFY(model->setCurrentLineType(byLayer)); // there is no such row yet
        QVERIFY(!model->setCurrentLineType({}));
        QCOMPARE(log.take(), "");
        QVERIFY(model->refresh(false, {}));
        QCOMPARE(log.take(), resetWithRow);
        QVERIFY(!model->refresh(false, byLayer));
        QVERIFY(model->setCurrentLineType(byLayer));
        model->selectLineType(byLayer);
        QCOMPARE(log.take(), "currentLineTypeChanged");
        QCOMPARE(text(*model), "byblock bylayer continuous *Varies** Load...");
        // A person's choice ends it; the row stays until the next rebuild.
        model->setCurrentIndexOrLoad(3);
        QCOMPARE(log.take(), "");
        model->setCurrentIndexOrLoad(0);
        QCOMPARE(log.take(), chosen);
        QVERIFY(model->setCurrentLineType(byLayer));
        QCOMPARE(text(*model), "byblock bylayer* continuous *Varies* Load...");
        QVERIFY(model->refresh(false, {}));
        QCOMPARE(text(*model), "byblock bylayer* continuous Load...");
    }

    void aPersonChooses()
    {
        Fixture fixture;
        const auto model = fixture.model();
        SignalLog log(*model);
        model->setCurrentIndexOrLoad(2);
        QCOMPARE(log.take(), chosen);
        model->setCurrentIndexOrLoad(2);
        for (const int bad : badRows) {
            model->setCurrentIndexOrLoad(bad);
            QVERIFY(!model->lineTypeId(bad) && !model->lineTypeName(bad) && model->getLocalName(bad).isEmpty());
        }
        QCOMPARE(log.take(), "");
        QCOMPARE(model->getCurrentIndex(), 2);
        QCOMPARE(model->getLocalName(3), "Load...");
        QCOMPARE(model->lineTypeId(3), std::optional(OdDbObjectId()));
        QCOMPARE(model->getIndexFromLocalName("bylayer"), 1);
        for (const char* name : {"ByLayer", "", "unknown"})
            QCOMPARE(model->getIndexFromLocalName(name), 0);
    }

    void theLoadRowOpensTheDialog_data()
    {
        const auto row = velmtest::columns<QStringList, bool, QString, QString>("loaded", "accepted", "rows", "log");
        row("cancelled, it goes back with two pairs of signals", QStringList(), false,
            "byblock bylayer continuous* Load...", chosen + ' ' + chosen);
        row("one that was loaded becomes current", QStringList("DOT"), true, "byblock bylayer continuous dot* Load...",
            chosen + ' ' + resetWithRow + ' ' + chosen);
        row("after several it goes back", {"DOT", "DASH"}, true, "byblock bylayer continuous* dot dash Load...",
            chosen + ' ' + resetWithRow + ' ' + chosen);
        row("after none it goes back", QStringList(), true, "byblock bylayer continuous* Load...",
            chosen + ' ' + resetWithRow + ' ' + chosen);
        row("one that has no row leaves the former", QStringList(""), true, "byblock bylayer continuous* Load...",
            chosen + ' ' + resetWithRow + ' ' + chosen);
    }

    void theLoadRowOpensTheDialog()
    {
        QFETCH(QStringList, loaded);
        QFETCH(bool, accepted);
        QFETCH(QString, rows);
        QFETCH(QString, log);
        Fixture fixture;
        const auto model = fixture.model();
        const velmtest::RowMirror mirror(*model);
        model->setCurrentIndexOrLoad(2);
        fixture.willLoad(loaded, accepted);
        if (loaded == QStringList(""))
            fixture.dialogs.loadLineTypes = [](OdArray<OdString>& names) { return names.append(L"elsewhere"), true; };
        SignalLog signalLog(*model);
        model->setCurrentIndexOrLoad(3);
        QCOMPARE(signalLog.take(), log);
        QCOMPARE(text(*model), rows);
        QCOMPARE(fixture.dialogs.log, QStringList("load linetypes  "));
    }

    void theFormerLinetypeIsFoundWhereItIsNow()
    {
        Fixture fixture;
        const auto model = fixture.model();
        model->setCurrentIndexOrLoad(2);
        fixture.dialogs.loadLineTypes = [&](OdArray<OdString>&) {
            return fixture.id("ByBlock").openObject()->erase(), true;
        };
        model->setCurrentIndexOrLoad(3);
        QCOMPARE(text(*model), "bylayer continuous* Load...");
        // When it is gone, the model stays at the first row.
        fixture.dialogs.loadLineTypes = [&](OdArray<OdString>&) {
            return fixture.id("Continuous").openObject()->erase(), true;
        };
        model->setCurrentIndexOrLoad(2);
        QCOMPARE(text(*model), "bylayer* Load...");
    }

    void aPageMayAskForTheDialogItself()
    {
        Fixture fixture;
        const auto model = fixture.model();
        model->setCurrentIndexOrLoad(1);
        fixture.willLoad({}, false);
        for (const int row : {0, 3, -2, -1, 1000, INT_MAX, INT_MIN})
            QCOMPARE(model->showLoadLineTypesDialog(row), 1); // the current row
        SignalLog log(*model);
        fixture.willLoad({"DOT"});
        QCOMPARE(model->showLoadLineTypesDialog(2), 3);
        QCOMPARE(log.take(), reset);
        QCOMPARE(text(*model), "byblock bylayer* continuous dot Load...");
        fixture.willLoad({"DASH", "DOT"});
        QCOMPARE(model->showLoadLineTypesDialog(2, nullptr), 2);
        for (const int bad : badRows)
            QCOMPARE(model->showLoadLineTypesDialog(bad), -1);
        model->setDatabase(false, nullptr);
        fixture.dialogs.log.clear();
        QCOMPARE(model->showLoadLineTypesDialog(77), 77);
        QCOMPARE(fixture.dialogs.log, QStringList());
    }

    void thePropertiesRowCallsItsAction()
    {
        Fixture fixture;
        const auto model = fixture.model();
        int calls = 0;
        model->setPropertiesAction([&] { ++calls; });
        model->setCurrentIndexOrLoad(2);
        model->refresh(false, fixture.id("ByLayer"));
        SignalLog log(*model);
        model->setCurrentIndexOrLoad(4);
        QCOMPARE(log.take(), chosen + ' ' + chosen);
        QCOMPARE(text(*model), "byblock bylayer continuous* Load... Properties...");
        QCOMPARE(calls, 1);
        model->setPropertiesAction({});
        model->setCurrentIndexOrLoad(4); // an ordinary row now, until the next rebuild
        QCOMPARE(model->getCurrentIndex(), 4);
        QCOMPARE(calls, 1);
    }
};

QTEST_GUILESS_MAIN(TestLineTypeModel)
#include "tst_linetypemodel.moc"
