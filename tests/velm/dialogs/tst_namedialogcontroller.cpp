#include "velm/dialogs/namedialogcontroller.h"

#include "support/fakehost.h"
#include "support/scopes.h"
#include "support/signallog.h"
#include "support/table.h"
#include "velm/dialogs/addrenamedialogcontroller.h"

#include <QMetaProperty>
#include <QTest>

using namespace velm;

class TestNameDialogController : public QObject
{
    Q_OBJECT
    velmtest::FakeGuiController m_host;
    QStringList m_validated;

    ExternalFunctions functions()
    {
        ExternalFunctions result;
        result.guiController = [this] { return &m_host; };
        result.getUIFullUrl = [](const QString& page) { return QUrl("qrc:/pages/" + page); };
        return result;
    }
    std::optional<QString> launch()
    {
        return NameDialogController::launchDialog("Save Filter", "Name:", "&Save", "old", [this](const QString& name) {
            m_validated += name;
            return name == "good";
        });
    }
    static std::function<void(BaseDialogController&)> type(const QString& name)
    {
        return [name](BaseDialogController& controller) { controller.setProperty("name", name); };
    }

private Q_SLOTS:
    void init()
    {
        m_host.log.clear();
        m_host.dialogs.clear();
        m_validated.clear();
    }

    void theDialogStaysOpenUntilTheNameIsGood()
    {
        const velmtest::ScopedExternalFunctions scope(functions());
        m_host.dialogs = {{{{}, 5100}, {type("bad"), 5100}, {type("good"), 5100}}};
        QCOMPARE(launch(), std::optional<QString>("good"));
        QCOMPARE(m_validated, QStringList({"old", "bad", "good"}));
        // The dialog dies while its controller lives.
        QCOMPARE(m_host.log, QStringList({"createDialog qrc:/pages/NameDialog.qml", "stayed open at 5100",
                                          "stayed open at 5100", "ended with 5100", "destroyed"}));
    }

    void anythingButOkGivesNoName_data()
    {
        const auto row = velmtest::columns<int>("code");
        row("Cancel", 5101);
        row("another end code", 5103);
    }
    void anythingButOkGivesNoName()
    {
        QFETCH(int, code);
        const velmtest::ScopedExternalFunctions scope(functions());
        m_host.dialogs = {{{type("good"), code}}};
        QVERIFY(!launch());
        QVERIFY(m_validated.isEmpty());
        QCOMPARE(m_host.log.last(), QString("destroyed"));
    }

    void withoutAHostThereIsNoDialog()
    {
        QVERIFY(!launch());
        ExternalFunctions noController = functions();
        noController.guiController = []() -> IGuiController* { return nullptr; };
        const velmtest::ScopedExternalFunctions scope(noController);
        QVERIFY(!launch());
        setVELMExternalFunction(functions());
        // A host without this dialog.
        QVERIFY(!launch());
        QVERIFY(m_validated.isEmpty());
    }

    void thePageReadsItsTextsAndWritesTheName()
    {
        const velmtest::ScopedExternalFunctions scope(functions());
        m_host.dialogs = {{{[](BaseDialogController& controller) {
                                velmtest::SignalLog log(controller);
                                QCOMPARE(controller.property("untranslatedTitle").toString(), QString("Save Filter"));
                                QCOMPARE(controller.property("label").toString(), QString("Name:"));
                                QCOMPARE(controller.property("button").toString(), QString("&Save"));
                                QCOMPARE(controller.property("name").toString(), QString("old"));
                                controller.setProperty("name", "good");
                                // The text field owns the text: nothing is sent back.
                                QCOMPARE(log.take(), QString());
                                QVERIFY(!controller.setProperty("label", "x"));
                            },
                            5100}}};
        QCOMPARE(launch(), std::optional<QString>("good"));
        const QMetaObject& metaObject = NameDialogController::staticMetaObject;
        const QMetaProperty name = metaObject.property(metaObject.indexOfProperty("name"));
        QCOMPARE(name.notifySignal().name(), QByteArray("nameChanged"));
        QVERIFY(metaObject.property(metaObject.indexOfProperty("label")).isConstant());
    }

    void addingAndRenamingDifferInTheButton()
    {
        AddRenameDialogController adding(true, "Layer:");
        QCOMPARE(adding.property("actionButtonName").toString(), QString("&Add"));
        QCOMPARE(AddRenameDialogController(false, "").actionButtonName(), QString("&Save"));
        QCOMPARE(adding.property("labelName").toString(), QString("Layer:"));
        QCOMPARE(adding.itemName(), QString());

        velmtest::SignalLog log(adding);
        adding.setProperty("itemName", "Walls");
        QCOMPARE(log.take(), QString("itemNameChanged"));
        QVERIFY(QMetaObject::invokeMethod(&adding, "setItemName", Q_ARG(QString, "Walls")));
        QCOMPARE(log.take(), QString());
    }
};

QTEST_GUILESS_MAIN(TestNameDialogController)
#include "tst_namedialogcontroller.moc"
