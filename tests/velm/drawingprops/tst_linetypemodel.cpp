#include "velm/drawingprops/linetypemodel.h"

#include "od/oddbdatabase.h"
#include "support/changescript.h"
#include "support/fakehost.h"
#include "support/members.h"
#include "support/rowmirror.h"
#include "support/rowtext.h"
#include "support/signallog.h"
#include "ut/themecolors.h"
#include "velm/bridge/conversions.h"
#include "velm/bridge/iguicontroller.h"

#include <QTest>

#include <wx/image.h>

#include <limits>

using namespace velm;
using velmtest::SignalLog;

namespace {
const QString reset = "modelAboutToBeReset modelReset";
const QString resetWithRow = "modelAboutToBeReset currentIndexChanged modelReset";
const QString chosen = "currentIndexChanged currentLineTypeChanged";
constexpr int badRows[] = {-2, -1, 1000, INT_MAX, INT_MIN};

std::unique_ptr<OdDbDatabase> drawing(std::initializer_list<const wchar_t*> more = {})
{
    auto database = std::make_unique<OdDbDatabase>();
    for (const wchar_t* name : more)
        database->addLinetype(name);
    return database;
}

OdDbObjectId idOf(const OdDbDatabase& database, const char* name)
{
    const auto* record = database.findLinetype(name);
    return record ? record->objectId() : OdDbObjectId();
}

/// A host that lists all linetypes of a drawing, with local names in lower case.
struct Fixture
{
    velmtest::FakeGuiController gui;
    velmtest::FakeDialogFactory dialogs;
    std::shared_ptr<OdDbDatabase> database = drawing();
    OdApDocManager manager;
    QStringList listed; ///< the arguments of each list
    OdArray<OdDbObjectId> first;
    bool succeeds = true;
    std::weak_ptr<void> keptAlive;
    int namedTooLate = 0;

    Fixture()
    {
        gui.lineTypes = [this](OdDbDatabase* from, bool noSecond, OdDbObjectId& id, bool noFirst,
                               LoadedLineTypes& loaded) {
            listed += QString("%1 %2 %3").arg(noSecond).arg(id.isNull() ? "-" : "id").arg(noFirst);
            loaded.ids = first;
            for (const OdDbLinetypeTableRecord* record : from->linetypes())
                loaded.ids.append(record->objectId());
            loaded.keepAlive = std::make_shared<int>();
            keptAlive = loaded.keepAlive;
            return succeeds;
        };
        gui.localName = [this](const OdString& stored) {
            namedTooLate += keptAlive.expired();
            return odFromQt(toQt(stored).toLower());
        };
    }

    std::unique_ptr<LineTypeModel> model(int firstOption = 0, int secondOption = 0)
    {
        return std::make_unique<LineTypeModel>(LineTypeModelParams{database.get(), firstOption, secondOption}, gui,
                                               dialogs, QSize(60, 8), [this] { return &manager; });
    }
    OdDbObjectId id(const char* name) const { return idOf(*database, name); }
    /// What the next dialog does: loads linetypes into the drawing, and says so or has been cancelled.
    void willLoad(QStringList names, bool accepted = true)
    {
        dialogs.loadLineTypes = [this, names, accepted](OdArray<OdString>& loaded) {
            for (const QString& name : names) {
                database->addLinetype(odFromQt(name));
                loaded.append(odFromQt(name.toLower()));
            }
            return accepted;
        };
    }
    OdApDocument* open(const wchar_t* name, std::initializer_list<const wchar_t*> more = {})
    {
        return manager.open(std::make_unique<OdApDocument>(name, drawing(more)));
    }
};

/// "byblock bylayer* continuous Load...", the current row with a star.
QString text(const LineTypeModel& model)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row)
        rows += model.index(row, 0).data(256).toString() + (row == model.getCurrentIndex() ? "*" : "");
    return rows.join(' ');
}
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
        QTest::addColumn<QStringList>("loaded");
        QTest::addColumn<bool>("accepted");
        QTest::addColumn<QString>("rows");
        QTest::addColumn<QString>("log");
        QTest::newRow("cancelled, it goes back with two pairs of signals")
            << QStringList() << false << "byblock bylayer continuous* Load..." << chosen + ' ' + chosen;
        QTest::newRow("one that was loaded becomes current")
            << QStringList("DOT") << true << "byblock bylayer continuous dot* Load..."
            << chosen + ' ' + resetWithRow + ' ' + chosen;
        QTest::newRow("after several it goes back")
            << QStringList{"DOT", "DASH"} << true << "byblock bylayer continuous* dot dash Load..."
            << chosen + ' ' + resetWithRow + ' ' + chosen;
        QTest::newRow("after none it goes back") << QStringList() << true << "byblock bylayer continuous* Load..."
                                                 << chosen + ' ' + resetWithRow + ' ' + chosen;
        QTest::newRow("one that has no row leaves the former")
            << QStringList("") << true << "byblock bylayer continuous* Load..."
            << chosen + ' ' + resetWithRow + ' ' + chosen;
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

    void itFollowsTheCurrentDocument()
    {
        Fixture fixture;
        OdApDocument* one = fixture.open(L"one.dxf", {L"ONE"});
        fixture.database = OdDbDatabase::keep(one->database());
        const auto model = fixture.model();
        const velmtest::RowMirror mirror(*model);
        model->setCurrentIndexOrLoad(3);
        SignalLog log(*model);
        OdApDocument* two = fixture.open(L"two.dxf", {L"TWO", L"MORE"});
        QCOMPARE(log.take(), resetWithRow);
        QCOMPARE(text(*model), "byblock* bylayer continuous two more Load...");
        fixture.manager.setCurDocument(one);
        QCOMPARE(log.take(), resetWithRow);
        QCOMPARE(text(*model), "byblock* bylayer continuous one Load...");
        fixture.manager.close(two);
        QCOMPARE(log.take(), "");
        // Nothing is told of a document that became current again, unless its linetypes changed.
        model->documentBecameCurrent(one);
        QCOMPARE(log.take(), "");
        one->database()->addLinetype(L"LATE");
        model->documentBecameCurrent(one);
        QCOMPARE(log.take(), reset);
        two = fixture.open(L"two.dxf");
        log.take();
        fixture.manager.close(two); // emptied, then filled
        QCOMPARE(log.take(), reset + ' ' + resetWithRow);
        QCOMPARE(text(*model), "byblock* bylayer continuous one late Load...");
        fixture.manager.close(one);
        QCOMPARE(log.take(), reset);
        QCOMPARE(model->rowCount(), 0);
        QCOMPARE(model->getCurrentIndex(), -1);
        for (const int row : {-1, 0})
            model->setCurrentIndexOrLoad(row);
        QCOMPARE(log.take(), "");
        fixture.open(L"three.dxf");
        QCOMPARE(text(*model), "byblock* bylayer continuous Load...");
    }

    void itMayKeepToItsDocument()
    {
        Fixture fixture;
        OdApDocument* one = fixture.open(L"one.dxf", {L"ONE"});
        fixture.database = OdDbDatabase::keep(one->database());
        const std::weak_ptr<OdDbDatabase> watched = fixture.database;
        auto model = fixture.model();
        fixture.database.reset();
        model->setFollowsCurrentDocument(false);
        fixture.open(L"two.dxf");
        QCOMPARE(text(*model), "byblock* bylayer continuous one Load...");
        {
            const auto deaf = createLineTypeModel({one->database()}, fixture.gui, fixture.dialogs, {}, {});
            fixture.manager.close(one);
            QCOMPARE(deaf->rowCount(), 5);
            QVERIFY(!watched.expired()); // which the model that hears nothing holds
            QVERIFY(!deaf->refresh(false, {}));
        }
        QVERIFY(watched.expired());
        QCOMPARE(text(*model), ""); // emptied nevertheless
        model.reset();
        fixture.open(L"three.dxf"); // the sanitizers see a call to a model that is gone
    }

    void aDocumentMayBeClosedUnderTheDialog()
    {
        Fixture fixture;
        OdApDocument* one = fixture.open(L"one.dxf");
        fixture.database = OdDbDatabase::keep(one->database());
        const auto model = fixture.model();
        fixture.database.reset();
        fixture.dialogs.loadLineTypes = [&](OdArray<OdString>& loaded) {
            fixture.manager.close(one);
            loaded.append(L"DOT");
            return true;
        };
        model->setCurrentIndexOrLoad(3);
        QCOMPARE(model->rowCount(), 0);
        model->setPropertiesAction([&] { fixture.manager.close(fixture.manager.curDocument()); });
        fixture.open(L"two.dxf");
        model->setCurrentIndexOrLoad(4);
        QCOMPARE(model->rowCount(), 0);
    }

    void anotherDatabase()
    {
        Fixture fixture;
        const auto model = fixture.model();
        SignalLog log(*model);
        QVERIFY(model->setDatabase(false, nullptr));
        QCOMPARE(log.take(), resetWithRow); // -1 in between
        QCOMPARE(model->getCurrentIndex(), 0);
        QVERIFY(!model->setDatabase(false, nullptr));
        QVERIFY(model->setDatabase(true, fixture.database.get()));
        QCOMPARE(log.take(), "currentIndexChanged");
        QCOMPARE(model->rowCount(), 4);
    }

    void thePreviewIsDrawnOnTheGroundOfTheTheme()
    {
        struct Ground : ut::ThemeColorsBase
        {
            unsigned long value;
            explicit Ground(unsigned long color) : value(color) {}
            unsigned long guiColorRef(ut::EGuiColor color) override { return int(color) == 21 ? value : 0xffffff; }
        };
        Fixture fixture;
        QString asked;
        fixture.gui.drawLineType = [&](int width, int height, wxBitmap& bitmap, OdDbObjectId lineType,
                                       OdDbObjectId second, const wxColour& ground) {
            asked = QString("%1x%2 %3 %4 %5")
                        .arg(width)
                        .arg(height)
                        .arg(lineType == fixture.id("ByLayer"))
                        .arg(second.isNull())
                        .arg(ground.GetRGB(), 0, 16);
            wxImage image(width, height);
            image.SetRGB(wxRect(0, 0, width, height), 1, 2, 3);
            bitmap = wxBitmap(image);
            return !lineType.isNull();
        };
        const auto model = fixture.model();
        const auto* byLayer = model->index(1, 0).data(0).value<LineTypeObject*>();
        ut::ThemeColorManager::setExtension(std::make_unique<Ground>(0x302010));
        const QImage image = byLayer->lineTypePreview(7, 5);
        QCOMPARE(asked, "7x5 1 1 302010");
        QCOMPARE(image.size(), QSize(7, 5));
        QCOMPARE(image.pixelColor(6, 4), QColor(1, 2, 3));
        ut::ThemeColorManager::setExtension(std::make_unique<Ground>(0)); // black turns into nearly black
        QVERIFY(model->index(3, 0).data(0).value<LineTypeObject*>()->lineTypePreview(7, 5).isNull());
        QCOMPARE(asked, "7x5 0 1 10101");
        ut::ThemeColorManager::releaseExtension();
        QCOMPARE(ILineTypeModel::linetypeName(fixture.id("ByLayer"), fixture.gui), "bylayer");
        for (const OdDbObjectId& id : {OdDbObjectId(), fixture.database->currentLayer()})
            QCOMPARE(ILineTypeModel::linetypeName(id, fixture.gui), "");
    }

    void viewsStayRightUnderRandomChange()
    {
        Fixture fixture;
        OdApDocument* one = fixture.open(L"one.dxf", {L"ONE"});
        fixture.open(L"two.dxf");
        fixture.database = OdDbDatabase::keep(fixture.manager.curDocument()->database());
        const auto model = fixture.model();
        const velmtest::RowMirror mirror(*model);
        const auto current = [&] { return OdDbDatabase::keep(fixture.manager.curDocument()->database()); };
        const auto anyId = [&](QRandomGenerator& random) {
            return OdDbObjectId(random.bounded(3) ? current().get() : nullptr, quint32(random.bounded(30)));
        };
        velmtest::ChangeScript script(62);
        script.add("select", [&](QRandomGenerator& random) { model->selectLineType(anyId(random)); });
        script.add("refresh", [&](QRandomGenerator& random) { model->refresh(false, anyId(random)); });
        script.add("varies", [&](QRandomGenerator& random) { model->setIsVaries(random.bounded(2)); });
        script.add("properties", [&](QRandomGenerator& random) {
            model->setPropertiesAction(random.bounded(2) ? [] {} : std::function<void()>());
        });
        script.add("choose", [&](QRandomGenerator& random) {
            fixture.database = current();
            fixture.willLoad(QStringList{"A", "B", "C"}.mid(random.bounded(4)), random.bounded(2));
            model->setCurrentIndexOrLoad(random.bounded(-2, model->rowCount() + 2));
        });
        script.add("erase", [&](QRandomGenerator& random) {
            const auto records = current()->linetypes();
            if (records.size() > 1)
                records[std::size_t(random.bounded(int(records.size())))]->erase();
        });
        script.add("switch", [&](QRandomGenerator& random) {
            fixture.manager.setCurDocument(random.bounded(2) ? one : fixture.manager.documents().back());
        });
        script.add("close and open", [&](QRandomGenerator&) {
            fixture.manager.close(fixture.manager.documents().back());
            one = fixture.open(L"three.dxf", {L"THREE"});
        });
        QVERIFY(script.run(500, [&] {
            return mirror.isRight() && model->rowCount() > 1 && model->getCurrentIndex() < model->rowCount() &&
                   model->getCurrentIndex() >= 0;
        }));
    }
};

QTEST_GUILESS_MAIN(TestLineTypeModel)
#include "tst_linetypemodel.moc"
