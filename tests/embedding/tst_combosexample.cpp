#include "docs/combos/pen.h"
#include "support/fakehost.h"
#include "support/pagetest.h"
#include "velm/drawingprops/iarrowheadmodel.h"

#include <QQmlComponent>
#include <QQuickItem>

class TestCombosExample : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aDrawingIsShownAndSet()
    {
        velmtest::FakeGuiController gui;
        velmtest::FakeDialogFactory dialogs;
        gui.lineTypes = [](OdDbDatabase* database, bool, OdDbObjectId&, bool, velm::LoadedLineTypes& loaded) {
            for (const OdDbLinetypeTableRecord* record : database->linetypes())
                loaded.ids.append(record->objectId());
            return true;
        };
        gui.lineWeights = [] { return std::vector<std::pair<int, OdString>>{{-1, L"ByLayer"}, {25, L"0.25 mm"}}; };
        const auto drawing = std::make_shared<OdDbDatabase>();
        drawing->setCELWEIGHT(25);
        drawing->setCELTYPE(drawing->findLinetype(L"Continuous")->objectId());
        Pen pen(gui, dialogs);
        const auto arrowHeads =
            velm::createArrowHeadModel({{{"_DOT", "Dot", {}}}, {}, 0, {}}, gui, dialogs, QSize(), nullptr);

        velm::PluginImportLoader loader;
        std::unique_ptr<QQmlEngine> engine = velm::createEngine(loader);
        QQmlComponent component(engine.get(), QUrl::fromLocalFile(VELM_DOCS "/combos/PenPage.qml"));
        std::unique_ptr<QObject> page(component.createWithInitialProperties(
            {{"colors", QVariant::fromValue<QObject*>(pen.colors.get())},
             {"lineTypes", QVariant::fromValue<QObject*>(pen.lineTypes.get())},
             {"lineWeights", QVariant::fromValue<QObject*>(pen.lineWeights.get())},
             {"arrowHeads", QVariant::fromValue<QObject*>(arrowHeads.get())}}));
        QVERIFY2(page, qPrintable(component.errorString()));
        const auto shows = [&](const char* name) {
            return page->findChild<QObject*>(name)->property("currentName").toString();
        };
        pen.show(drawing.get());
        QCOMPARE(shows("lineType"), QString("Continuous"));
        QCOMPARE(shows("lineWeight"), QString("0.25 mm"));
        QCOMPARE(shows("arrowHead"), QString("Dot"));
        QMetaObject::invokeMethod(pen.colors.get(), "onClicked", Q_ARG(int, 2));
        QMetaObject::invokeMethod(pen.lineTypes.get(), "setCurrentIndexOrLoad", Q_ARG(int, 1));
        QMetaObject::invokeMethod(pen.lineWeights.get(), "onChangeCurrentComboIndex", Q_ARG(int, 0));
        QCOMPARE(drawing->getCECOLOR(), OdCmColor::fromIndex(1));
        QCOMPARE(shows("lineType"), QString("ByLayer"));
        QVERIFY(drawing->getCELTYPE() == drawing->findLinetype(L"ByLayer")->objectId());
        QCOMPARE(drawing->getCELWEIGHT(), -1);

        pen.setIsVaries(true);
        for (const char* name : {"color", "lineType", "lineWeight"})
            QCOMPARE(shows(name), QString("*Varies*"));
        pen.show(drawing.get());
        QCOMPARE(shows("lineType"), QString("ByLayer"));
        QCOMPARE(page->findChild<QObject*>("color")->property("currentIndex").toInt(), 2);
        pen.show(nullptr);
        QCOMPARE(shows("lineType"), QString());
        page.reset();
        velm::resetEngine(engine);
    }
};

PAGE_TEST_MAIN(TestCombosExample)
#include "tst_combosexample.moc"
