#include "velm/bridge/externalfunctions.h"

#include "support/fakehost.h"
#include "support/scopes.h"
#include "velm/bridge/conversions.h"
#include "velm/drawingprops/colorcollection.h"

#include <QPointer>
#include <QTest>

using namespace velm;

class TestExternalFunctions : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void withoutAHostEveryRoadGivesTheEmptyValue()
    {
        QCOMPARE(plotStyleColorDependent(), false);
        QVERIFY(!currentDatabase());
        QVERIFY(!guiController());
        QVERIFY(!dlgFactory());
        QVERIFY(!docManager());
        QVERIFY(!getUnitFormatter(1.0));
        QVERIFY(!getUIFullUrl("Page.qml").isValid());
        QVERIFY(getWebDocUrl("key").isNull());
        processEnter();
        processEscape();
        processCommand(L"LINE");
        openWebDoc("key");
    }

    void everyRoadLeadsToItsOwnCallback()
    {
        QStringList log;
        velmtest::FakeUnitFormatter formatter;
        ExternalFunctions functions;
        functions.plotStyleColorDependent = [] { return true; };
        functions.processEnter = [&] { log += "enter"; };
        functions.processEscape = [&] { log += "escape"; };
        functions.processCommand = [&](const OdString& command) { log += "command " + toQt(command); };
        functions.openWebDoc = [&](const QString& key) { log += "open " + key; };
        functions.getWebDocUrl = [&](const QString& key) { return "web:" + key; };
        functions.getUIFullUrl = [](const QString& page) { return QUrl("qrc:/" + page); };
        functions.getUnitFormatter = formatter.getter();
        const velmtest::ScopedExternalFunctions scope(functions);

        processEnter();
        processEscape();
        processCommand(L"LINE");
        openWebDoc("a");
        QCOMPARE(log, QStringList({"enter", "escape", "command LINE", "open a"}));
        QVERIFY(plotStyleColorDependent());
        QCOMPARE(getWebDocUrl("b"), QString("web:b"));
        QCOMPARE(getUIFullUrl("Page.qml"), QUrl("qrc:/Page.qml"));
        QCOMPARE(getUnitFormatter(2.5), &formatter);
        QCOMPARE(formatter.log, QStringList{"got for 2.5"});
    }

    void aLaterRecordReplacesAllCallbacksTogether()
    {
        ExternalFunctions functions;
        functions.plotStyleColorDependent = [] { return true; };
        const velmtest::ScopedExternalFunctions scope(functions);
        QVERIFY(plotStyleColorDependent());
        ExternalFunctions next;
        next.getWebDocUrl = [](const QString&) { return QString("next"); };
        setVELMExternalFunction(next);
        QVERIFY(!plotStyleColorDependent());
        QCOMPARE(getWebDocUrl(""), QString("next"));
    }

    void testResourcesLieBelowTheDrawingsFolder()
    {
        const velmtest::ScopedEnvironment set("DRAWINGS_PATH", "/drawings");
        QCOMPARE(toQt(getFullQtTestResourcesPath(L"a/b.dxf")), QString("/drawings/Qt/a/b.dxf"));
        const velmtest::ScopedEnvironment unset("DRAWINGS_PATH");
        QTest::ignoreMessage(QtWarningMsg, "Wasn't able to find the local drawings folder: DRAWINGS_PATH env var "
                                           "wasn't set.");
        QCOMPARE(toQt(getFullQtTestResourcesPath(L"b.dxf")), QString("/Qt/b.dxf"));
    }

    void theEmptyControllerDestroysWhatItIsGiven()
    {
        const auto controller = createEmptyGuiController();
        auto object = std::make_unique<QObject>();
        const QPointer<QObject> watched = object.get();
        QVERIFY(!controller->hostCreateShared1(QUrl("qrc:/a.qml"), std::move(object)));
        QVERIFY(!watched);

        bool destroyed = false;
        struct Record : HostRecord
        {
            explicit Record(bool& flag) : destroyed(flag) {}
            ~Record() override { destroyed = true; }
            bool& destroyed;
        };
        controller->hostTakeOwned(std::make_unique<Record>(destroyed));
        QVERIFY(destroyed);

        auto shared = std::make_shared<int>(1);
        controller->hostTakeShared(shared);
        QCOMPARE(shared.use_count(), 1L);
    }

    void theEmptyControllerHasColorsAndNothingElse()
    {
        const auto controller = createEmptyGuiController();
        QCOMPARE(controller->getArrayColor(3, 0), OdCmColor::fromIndex(1));
        QCOMPARE(controller->tryAddColor(OdCmColor::fromRGB(1, 2, 3), 1), std::optional<int>(10));
        QCOMPARE(controller->initColorIndices(1).last(), 10);
        QVERIFY(!controller->shouldInitColor(OdCmColor::fromRGB(255, 255, 255), 32));
        QCOMPARE(controller->colorComboFlagsToDialog(1 | 8, true), 64 | 16);

        QVERIFY(!controller->createDialog(QUrl(), nullptr, nullptr, DialogOptions(), nullptr));
        const ColorDescription description =
            controller->describeColor(OdCmColor::fromIndex(1), wxColour(1, 2, 3), true, 3);
        QVERIFY(!description.drawDiagonal && description.name.empty() && !description.color.IsOk());
        QVERIFY(controller->linetypeLocalName(L"DASHED").isEmpty());
        QCOMPARE(controller->lineWeightCount(), 0);
        QCOMPARE(controller->hostValue(), std::intptr_t(0));
    }
};

QTEST_APPLESS_MAIN(TestExternalFunctions)
#include "tst_externalfunctions.moc"
