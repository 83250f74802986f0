#include "support/fakehost.h"
#include "support/scopes.h"
#include "support/signallog.h"
#include "velm/bridge/conversions.h"
#include "velm/dialogs/commandcontextdialogcontroller.h"
#include "velm/dialogs/commandcontextdialogsession.h"
#include "velm/dialogs/commandlinecalls.h"
#include "velm/dialogs/icommandcontextpaneltitlecontroller.h"

#include <QTest>
#include <QUrl>

using namespace velm;

class TestCommandContext : public QObject
{
    Q_OBJECT
    velmtest::FakeGuiController m_host;
    QStringList m_commandLine;

    ExternalFunctions functions()
    {
        ExternalFunctions result;
        result.processEnter = [this] { m_commandLine += "enter"; };
        result.processEscape = [this] { m_commandLine += "escape"; };
        result.processCommand = [this](const OdString& command) { m_commandLine += toQt(command); };
        return result;
    }
    std::shared_ptr<CommandContextDialogSession> open(std::shared_ptr<CommandContextDialogController> controller)
    {
        m_host.dialogs = {{}};
        return CommandContextDialogSession::create(m_host, QUrl("qrc:/Line.qml"), std::move(controller));
    }
    QStringList takeHostLog() { return std::exchange(m_host.log, {}); }

private Q_SLOTS:
    void init()
    {
        m_host.log.clear();
        m_host.dialogs.clear();
        m_commandLine.clear();
    }

    void aSessionShowsItsPanelUntilItIsClosed()
    {
        auto controller = std::make_shared<CommandContextDialogController>();
        auto session = open(controller);
        QCOMPARE(takeHostLog(), QStringList({"createDialog qrc:/Line.qml not modal", "addContextDialog", "shown"}));
        QCOMPARE(session->getContentsController(), controller);
        QCOMPARE(controller.use_count(), 2);
        session->close();
        QCOMPARE(takeHostLog(), QStringList({"removeContextDialog", "destroyed"}));
        QVERIFY(!session->getContentsController());
        QVERIFY(!session->disable());
        QCOMPARE(controller.use_count(), 1);
        session->close();
        session.reset();
        QVERIFY(takeHostLog().isEmpty());
    }

    void theEndOfASessionClosesIt()
    {
        auto session = open(std::make_shared<CommandContextDialogController>());
        takeHostLog();
        session.reset();
        QCOMPARE(takeHostLog(), QStringList({"removeContextDialog", "destroyed"}));
    }

    void aHostWithoutADialogLeavesASessionWithoutAWindow()
    {
        auto controller = std::make_shared<CommandContextDialogController>();
        auto session = CommandContextDialogSession::create(m_host, QUrl("qrc:/Line.qml"), controller);
        QCOMPARE(takeHostLog(), QStringList({"createDialog qrc:/Line.qml not modal"}));
        {
            const auto disabler = session->disable();
            QVERIFY(!controller->getPanelEnabled());
        }
        QVERIFY(controller->getPanelEnabled());
        session->close();
        QVERIFY(takeHostLog().isEmpty());
        QVERIFY(!CommandContextDialogSession::create(m_host, QUrl(), nullptr)->disable());
    }

    void disablersDontCount()
    {
        auto controller = std::make_shared<CommandContextDialogController>();
        auto session = open(controller);
        velmtest::SignalLog log(*controller);
        auto first = session->disable();
        auto second = session->disable();
        QCOMPARE(log.take(), QString("panelEnabledChanged panelEnabledChanged"));
        first.reset();
        QVERIFY(controller->getPanelEnabled());
        second.reset();
        QVERIFY(controller->getPanelEnabled());
        QCOMPARE(log.take(), QString("panelEnabledChanged panelEnabledChanged"));
        controller->setPanelEnabled(true);
        controller->setPanelEnabled(true);
        QCOMPARE(log.take(), QString("panelEnabledChanged panelEnabledChanged"));
    }

    void aDisablerMayOutliveSessionAndController()
    {
        auto controller = std::make_shared<CommandContextDialogController>();
        auto session = open(controller);
        auto disabler = session->disable();
        session.reset();
        QVERIFY(!controller->getPanelEnabled());
        // Somebody else still holds the controller: it is enabled again.
        disabler.reset();
        QVERIFY(controller->getPanelEnabled());
        session = open(controller);
        disabler = session->disable();
        session.reset();
        const std::weak_ptr<CommandContextDialogController> weak = controller;
        controller.reset();
        QVERIFY(weak.expired());
        disabler.reset();
    }

    void callsOfThePageWaitForTheEventLoop()
    {
        const velmtest::ScopedExternalFunctions scope(functions());
        QObject context;
        acceptCommandLine(&context);
        rejectCommandLine(&context);
        invokeCommandLineOption(&context, L"Undo");
        invokeCommandLineOption(&context, L"_Close");
        invokeCommandLineEnterValues(&context, {L"a", L"b", L"c"});
        invokeCommandLineEnterValues(&context, {L"1.5"});
        CommandContextDialogController controller;
        controller.closeClick();
        QVERIFY(m_commandLine.isEmpty());
        QCoreApplication::processEvents();
        QCOMPARE(m_commandLine, QStringList({"enter", "escape", "_Undo", "_Close", "a;b;c", "1.5", "escape"}));
    }

    void whatHasNoContextOrNothingToSayIsntCalled()
    {
        const velmtest::ScopedExternalFunctions scope(functions());
        acceptCommandLine(nullptr);
        rejectCommandLine(nullptr);
        invokeCommandLineOption(nullptr, L"Undo");
        invokeCommandLineEnterValues(nullptr, {L"a"});
        QObject context;
        invokeCommandLineOption(&context, {});
        invokeCommandLineEnterValues(&context, {});
        {
            QObject dying;
            acceptCommandLine(&dying);
            invokeCommandLineOption(&dying, L"Undo");
            CommandContextDialogController controller;
            controller.closeClick();
        }
        QCoreApplication::processEvents();
        QVERIFY(m_commandLine.isEmpty());
    }

    void aTitleGivesACopyOfItsPage()
    {
        QUrl url("qrc:/Title.qml");
        const ICommandContextPanelTitleController title(url);
        url.clear();
        QCOMPARE(title.getSourceUrl(), QUrl("qrc:/Title.qml"));
    }
};

QTEST_GUILESS_MAIN(TestCommandContext)

#include "tst_commandcontext.moc"
