#include "velm/bridge/iqtcontroller.h"
#include "velm/bridge/qtcontrollerwrapper.h"
#include "velm/bridge/qtwindowparent.h"
#include "velm/bridge/urlandcontroller.h"

#include "support/scopes.h"

#include <QMetaProperty>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>
#include <QWindow>

#include <wx/accel.h>

using namespace velm;

namespace {
class SheetSetPanel : public ISheetSetPanel
{
public:
    void hostOperation1() override {}
    void hostOperation2() override {}
    void hostOperation3() override {}
};

class LookFrom : public ILookFrom
{};

class Page : public IQtController
{
public:
    std::vector<IQtControllerInterface*> interfaces;
    QObject popup;

    void hostOperation1() override {}
    void hostOperation2() override {}
    void hostOperation3() override {}
    void hostOperation4() override {}
    void hostOperation5() override {}
    void hostOperation6() override {}
    void hostOperation7() override {}
    void reload(int) override {}
    void hostOperation8() override {}
    void hostOperation9() override {}
    void hostOperation10() override {}
    void hostOperation11() override {}
    void hostOperation12() override {}
    void hostOperation13() override {}
    QObject* findInTransientPopups(const QString& objectName) override
    {
        return objectName == "popup" ? &popup : nullptr;
    }
    void getInterfaces(std::vector<IQtControllerInterface*>& result) const override { result = interfaces; }
};
} // namespace

class TestIQtController : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theFirstFittingInterfaceIsFound()
    {
        Page page;
        QVERIFY(!page.getISheetSetPanel());
        QVERIFY(!page.getLookFrom());
        LookFrom look;
        SheetSetPanel first;
        SheetSetPanel second;
        page.interfaces = {nullptr, &look, &first, &second};
        QCOMPARE(page.getISheetSetPanel(), &first);
        QCOMPARE(page.getLookFrom(), &look);
        page.interfaces = {&look};
        QVERIFY(!page.getISheetSetPanel());
    }

    void qmlReachesTheControllerThroughItsWrapper()
    {
        Page page;
        page.setAcceleratorTable(wxAcceleratorTable());
        QtControllerWrapper wrapper(&page);
        QCOMPARE(wrapper.getController(), &page);
        QVERIFY(!wrapper.parent());
        QObject* found = nullptr;
        QVERIFY(QMetaObject::invokeMethod(&wrapper, "findInTransientPopups", Q_RETURN_ARG(QObject*, found),
                                          Q_ARG(QString, "popup")));
        QCOMPARE(found, &page.popup);
        QVERIFY(!wrapper.findInTransientPopups("other"));
    }

    void qmlReadsAPageAndItsControllerFromAVariant()
    {
        QQmlEngine engine;
        QQmlComponent component(&engine);
        component.setData("import QtQml\nQtObject { property var value\n"
                          "property url source: value.sourceUrl\n property string name: value.controller.objectName }",
                          QUrl());
        QObject controller;
        controller.setObjectName("a controller");
        const QVariant value = UrlAndController::create(QUrl("qrc:/a.qml"), &controller);
        QCOMPARE(value.typeName(), "velm::UrlAndController");
        const std::unique_ptr<QObject> object(component.createWithInitialProperties({{"value", value}}));
        QVERIFY2(object, qPrintable(component.errorString()));
        QCOMPARE(object->property("source").toUrl(), QUrl("qrc:/a.qml"));
        QCOMPARE(object->property("name").toString(), QString("a controller"));

        const QMetaObject& metaObject = UrlAndController::staticMetaObject;
        QCOMPARE(metaObject.property(0).name(), "sourceUrl");
        QCOMPARE(metaObject.property(1).name(), "controller");
        QVERIFY(!metaObject.property(0).isWritable() && !metaObject.property(1).isWritable());
        QVERIFY(!UrlAndController().controller && UrlAndController().sourceUrl.isEmpty());
    }

    void theWindowPairIsOnlyCarried()
    {
        QObject owner;
        auto* empty = new QtWindowParent(&owner);
        QCOMPARE(empty->parent(), &owner);
        QVERIFY(!empty->getWxParent() && !empty->getQtParent());

        QWindow window;
        auto* host = reinterpret_cast<wxWindow*>(&owner); // never followed
        {
            QtWindowParent pair(host, &window);
            QVERIFY(!pair.parent());
            wxWindow* fromQml = nullptr;
            QVERIFY(QMetaObject::invokeMethod(&pair, "getWxParent", Q_RETURN_ARG(wxWindow*, fromQml)));
            QCOMPARE(fromQml, host);
            pair.setWxParent(nullptr);
            QCOMPARE(pair.getQtParent(), &window);
            pair.setQtParent(nullptr);
            QVERIFY(!pair.getWxParent() && !pair.getQtParent());
        }
    }
};

QTEST_MAIN(TestIQtController)
#include "tst_iqtcontroller.moc"
