#include "linetypecombo.h"

#include "support/changescript.h"
#include "support/rowmirror.h"
#include "support/signallog.h"
#include "ut/themecolors.h"

#include <QTest>

#include <wx/image.h>

using namespace linetypecombo;
using velmtest::SignalLog;

class TestLineTypeDocuments : public QObject
{
    Q_OBJECT
private Q_SLOTS:
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

QTEST_GUILESS_MAIN(TestLineTypeDocuments)
#include "tst_linetypedocuments.moc"
