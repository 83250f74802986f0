#include "workbenchtest.h"

#include "host/dialogfactory.h"
#include "host/pagedialog.h"
#include "support/table.h"
#include "ut/config.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/dialogs/modalrunner.h"
#include "velm/dialogs/namedialogcontroller.h"
#include "velm/theme/qtthemecolors.h"

#include <wx/notebook.h>

using namespace workbench;

namespace {
const QString onItsWay = QStringLiteral("panel");
}

/// Pages in the windows of the host, worked by mouse and keyboard. One program serves all tests; each begins with the
/// small drawing open, the panel of layers in front and the keyboard in the command line.
class HostingTest : public WorkbenchTest
{
    Q_OBJECT
public:
    using WorkbenchTest::WorkbenchTest;

private Q_SLOTS:
    void init()
    {
        const QString drawing = write("small.dxf", smallDrawing());
        m_driver.ask([&] {
            openAlone(m_frame, drawing);
            m_frame.panels().SetSelection(0);
        });
        m_driver.waitFor("the layers on the screen", [&] { return m_driver.hasItem("layers/Beta/name"); });
        wxTextCtrl* input = m_frame.commandLine().input();
        m_driver.click(*input);
        waitForKeyboard("input");
    }

    void cleanup() { m_driver.waitForNoDialog(); }

    void cleanupTestCase()
    {
        // The program is ended with a modal dialog open over an animated page: it must get out of both by itself.
        const QString page =
            write("Last.qml", "import QtQuick\nRectangle { color: 'red'\n"
                              "NumberAnimation on opacity { from: 0; to: 1; duration: 200; loops: -1 } }");
        m_driver.command("PAGE " + page);
        m_driver.start([this] {
            m_frame.layers().setCurrentRow(1);
            m_frame.layers().renameCurrent();
        });
        m_driver.waitForDialog("Rename Layer");
    }

    void tabWalksThroughAPageAndOutAgainBothWays()
    {
        m_driver.clickItem("layers/Alpha/name");
        m_driver.click(*m_frame.commandLine().input());
        waitForKeyboard("input");

        QStringList round;
        while (round.isEmpty() || (round.last() != "input" && round.size() < 40))
            round += walk("Tab", 1);
        const qsizetype search = round.indexOf("search");
        QVERIFY2(search >= 0, qPrintable(round.join(' ')));
        QCOMPARE(round.mid(search, 4), QStringList({"search", "help", "layers", "rename"}));
        QCOMPARE(round.count("search"), 1);
        QCOMPARE(round.last(), QString("input"));

        QStringList back = walk("shift+Tab", static_cast<int>(round.size()));
        std::reverse(back.begin(), back.end());
        back << back.takeFirst();
        QCOMPARE(back, round);
    }

    void escapeIsThePagesFirstAndTheHostsThen()
    {
        clickSearchField();
        m_driver.type("alp");
        m_driver.waitFor("one layer in the list", [&] { return !m_driver.hasItem("layers/Beta/name"); });
        m_driver.key("Escape");
        m_driver.waitFor("all layers in the list", [&] { return m_driver.hasItem("layers/Beta/name"); });
        QCOMPARE(keyboardPlace(), QString("search"));
        m_driver.key("Escape");
        waitForKeyboard("input");
    }

    void aShortcutOfTheHostWorksInAPage()
    {
        const auto scale = [this] { return m_frame.canvas().view().scale; };
        const double fitted = m_driver.ask(scale);
        m_driver.ask([&] { m_frame.canvas().zoomBy(3.0, wxPoint(10, 10)); });
        QVERIFY(!qFuzzyCompare(m_driver.ask(scale), fitted));
        clickSearchField();
        m_driver.key("ctrl+0");
        m_driver.waitFor("the whole drawing", [&] { return qFuzzyCompare(scale(), fitted); });
        QCOMPARE(keyboardPlace(), QString("search"));
    }

    void aClickMovesTheKeyboardBetweenTheToolkits()
    {
        clickSearchField();
        m_driver.type("a");
        m_driver.click(*m_frame.commandLine().input());
        waitForKeyboard("input");
        m_driver.type("xyz");
        m_driver.waitFor("the text in the command line",
                         [&] { return m_frame.commandLine().input()->GetValue() == "xyz"; });
        QCOMPARE(m_driver.property("search", "text").toString(), QString("a"));
        QVERIFY(!m_driver.itemHasFocus("search"));
        clickSearchField();
        m_driver.key("Escape");
        m_driver.waitFor("an empty search field", [&] { return m_driver.property("search", "text") == ""; });
        m_driver.ask([&] { m_frame.commandLine().input()->Clear(); });
    }

    void aModalDialogBlocksPagesAndGivesTheKeyboardBack()
    {
        m_driver.clickItem("layers/Beta/name");
        waitForKeyboard("layers");
        m_driver.start(
            [] { velm::dlgFactory()->showInfoMessage(L"Note", L"Something", nullptr, velm::MessageButtonStyle::OK); });
        m_driver.waitForDialog("Note");
        m_driver.clickItem("layers/Alpha/on");
        m_driver.clickItem("search");
        m_driver.type("b");
        // The dialog's own answer shows that everything before it was served.
        m_driver.key("Escape");
        m_driver.waitForNoDialog();
        QVERIFY(!m_driver.ask([&] { return m_frame.documents().current()->database()->findLayer(L"Alpha")->isOff(); }));
        QCOMPARE(m_driver.property("search", "text").toString(), QString());
        waitForKeyboard("layers");
        QCOMPARE(m_driver.ask([&] { return m_frame.layers().currentRow(); }), 2);
        m_driver.key("Up");
        m_driver.waitFor("the row above", [&] { return m_frame.layers().currentRow() == 1; });
    }

    void aNameIsRefusedUntilItIsGood()
    {
        const QString bad = "Al/pha";
        startRenaming();
        m_driver.replaceText(bad);
        m_driver.waitFor("the bad name", [&] { return m_driver.property("name", "text") == bad; });
        m_driver.clickItem("accept");
        m_driver.waitFor("the refusal", [&] { return m_driver.dialogText().contains("characters"); });
        m_driver.key("Return");
        waitForKeyboard("accept");
        QCOMPARE(m_driver.property("name", "text").toString(), bad);
        m_driver.clickItem("name");
        waitForKeyboard("name");
        m_driver.replaceText("Gamma");
        m_driver.waitFor("the good name", [&] { return m_driver.property("name", "text") == "Gamma"; });
        m_driver.key("Return");
        m_driver.waitForNoDialog();
        m_driver.waitFor("the new name in the list", [&] {
            return m_driver.hasItem("layers/Gamma/name") && !m_driver.hasItem("layers/Alpha/name");
        });
        m_driver.waitFor("the keyboard in the panel again",
                         [] { return qobject_cast<PageView*>(QGuiApplication::focusWindow()) != nullptr; });
    }

    void aCancelledRenamingChangesNothing()
    {
        startRenaming();
        m_driver.replaceText("Delta");
        m_driver.key("Escape");
        m_driver.waitForNoDialog();
        QVERIFY(m_driver.hasItem("layers/Alpha/name"));
        m_driver.waitFor("the keyboard in the panel again",
                         [&] { return QString("rename layers").contains(keyboardPlace()); });
    }

    void aPageMayDieWhileItAnimates_data()
    {
        const auto row = velmtest::columns<QString>("way");
        row("by its host's own hand", "host");
        row("by the X server, from outside", "server");
    }
    void aPageMayDieWhileItAnimates()
    {
        QFETCH(QString, way);
        const QString page = write("Animated.qml", R"(import QtQuick
Rectangle {
    color: "navy"
    Rectangle {
        objectName: "turning"
        width: 40; height: 40; anchors.centerIn: parent; color: "orange"
        property int frames: 0
        onRotationChanged: ++frames
        NumberAnimation on rotation { from: 0; to: 360; duration: 500; loops: Animation.Infinite }
    }
})");
        const size_t others = m_driver.ask([&] { return m_frame.panels().GetPageCount(); });
        m_driver.command("PAGE " + page);
        m_driver.waitFor("the page to animate", [&] {
            return m_driver.hasItem("turning") && m_driver.property("turning", "frames").toInt() > 10;
        });
        const auto tried = [&]() -> PagePanel& { return *m_frame.panel(static_cast<int>(others)); };
        if (way == "server") {
            const auto window = m_driver.ask([&] { return tried().view()->parent()->winId(); });
            QCOMPARE(QProcess::execute("xdotool", {"windowclose", QString::number(window)}), 0);
            m_driver.waitFor("the page without a window", [&] { return !tried().view()->handle(); });
        }
        m_driver.command("PAGE");
        m_driver.waitFor("the page to go", [&] { return m_frame.panels().GetPageCount() == others; });
        // The others live on.
        m_driver.ask([&] { m_frame.panels().SetSelection(0); });
        m_driver.clickItem("layers/Beta/name");
        m_driver.waitFor("the other page to answer", [&] { return m_frame.layers().currentRow() == 2; });
    }

    void aBrokenPageIsLoggedAndLeavesANote()
    {
        const QString page = write("Broken.qml", "import QtQuick\nItem {\n    nonsense: 1\n}\n");
        QTest::ignoreMessage(QtCriticalMsg, "Cannot assign to non-existent property \"nonsense\"");
        m_driver.command("PAGE " + page);
        m_driver.waitFor("the note", [&] { return m_driver.hasItem("noteReason"); });
        QVERIFY(m_driver.property("noteReason", "text").toString().contains("Broken.qml:3"));
        m_driver.command("PAGE");
    }

    void panelsSurviveANewEngine()
    {
        m_driver.clickItem("layers/Beta/name");
        m_driver.command("REBUILD");
        m_driver.waitFor("the message", [&] { return m_frame.commandLine().logText().Contains("new engine"); });
        m_driver.waitFor("the layers", [&] { return m_driver.hasItem("layers/Beta/name"); });
        QCOMPARE(m_driver.ask([&] { return m_frame.layers().currentRow(); }), 2);
        m_driver.clickItem("layers/Beta/on");
        m_driver.waitFor("the page to work", [&] { return m_frame.canvas().drawnEntityCount() == 1; });
        clickSearchField();
    }

    void aThemeRecoloursBothToolkitsAndIsStored()
    {
        // In the margin, beside what the windows show.
        const auto isLight = [this](wxWindow& window) {
            return m_driver.picture().pixelColor(m_driver.rectOf(window).topRight() + QPoint(-4, 4)).lightness() > 128;
        };
        wxWindow& page = *m_driver.ask([&] { return m_frame.panel(0); });
        QVERIFY(!isLight(page));
        QVERIFY(!isLight(m_frame.canvas()));
        for (const char* command : {"THEME LIGHT", "THEME DARK"}) {
            const bool light = QByteArray(command).endsWith("LIGHT");
            m_driver.command(command);
            for (wxWindow* window : std::initializer_list<wxWindow*>{&page, &m_frame.canvas(), &m_frame.commandLine()})
                m_driver.waitFor("a window's colour", [&] { return isLight(*window) == light; });
            // What a later start reads.
            m_driver.ask([] { ut::Config::reopen(); });
            QCOMPARE(m_driver.ask([] { return ut::configColorTheme(); }) == ut::EGuiColorTheme::Light, light);
        }
    }

    void aDamagedDrawingLeavesTheOpenOne()
    {
        const QString drawing = write("damaged.dxf", smallDrawing().chopped(60));
        m_driver.command("OPEN " + drawing);
        m_driver.waitForDialog("Open Drawing");
        QVERIFY2(m_driver.dialogText().contains("damaged.dxf"), qPrintable(m_driver.dialogText()));
        m_driver.key("Return");
        m_driver.waitForNoDialog();
        QVERIFY(m_driver.hasItem("layers/Alpha/name"));
    }

    void aMessageBoxGivesTheIdOfItsButton_data()
    {
        const auto row = velmtest::columns<int, QString, int>("style", "key", "id");
        row("Return presses the first button", 3, "Return", 2);
        row("a mnemonic presses its button", 3, "alt+n", 8);
        row("Escape is Cancel", 3, "Escape", 16);
        row("Escape is No where there is no Cancel", 2, "Escape", 8);
        row("Escape is the only button where there is one", 0, "Escape", 4);
    }
    void aMessageBoxGivesTheIdOfItsButton()
    {
        QFETCH(int, style);
        QFETCH(QString, key);
        QFETCH(int, id);
        int result = 0;
        m_driver.start([&] {
            result = velm::dlgFactory()->showMessage(L"Question", L"Which?", velm::EMessageStyle::Warning,
                                                     static_cast<velm::MessageButtonStyle>(style), nullptr);
        });
        m_driver.waitForDialog("Question");
        m_driver.key(key);
        m_driver.waitForNoDialog();
        m_driver.waitFor("the result", [&] { return result != 0; });
        QCOMPARE(result, id);
    }

    void whatAModalRunnerThrowsComesOutAfterTheDialog()
    {
        const QString outcome = m_driver.ask([]() -> QString {
            bool wasCancelled = false;
            try {
                velm::ModalRunner runner([](qwc::qwxDialog* dialog) {
                    if (!dialog->IsModal())
                        throw std::logic_error("not modal");
                    throw std::runtime_error("thrown inside");
                });
                wasCancelled = !velm::NameDialogController::launchDialog("Rename Layer", "label", "button", "name",
                                                                         [](const QString&) { return true; });
            } catch (const std::exception& exception) {
                return QString(wasCancelled ? "cancelled, %1" : "%1").arg(exception.what());
            }
            return "nothing";
        });
        QCOMPARE(outcome, QString("cancelled, thrown inside"));
    }

private:
    void clickSearchField()
    {
        m_driver.clickItem("search");
        waitForKeyboard("search");
    }

    void startRenaming()
    {
        m_driver.clickItem("layers/Alpha/name");
        m_driver.clickItem("rename");
        m_driver.waitForDialog("Rename Layer");
        waitForKeyboard("name");
    }

    /// Where the keyboard is: the name of a page's item, or of a window of the host. A panel that has just got it is
    /// about to hand it on to its page.
    QString keyboardPlace()
    {
        return m_driver.ask([&]() -> QString {
            if (const auto* view = qobject_cast<PageView*>(QGuiApplication::focusWindow())) {
                const QQuickItem* item = view->activeFocusItem();
                while (item && item->objectName().isEmpty())
                    item = item->parentItem();
                return item ? item->objectName() : QStringLiteral("page");
            }
            const wxWindow* window = wxWindow::FindFocus();
            if (window == m_frame.commandLine().input())
                return "input";
            if (dynamic_cast<const PagePanel*>(window))
                return onItsWay;
            return window ? velm::toQt(window->GetClassInfo()->GetClassName()) : QString();
        });
    }

    void waitForKeyboard(const QString& place)
    {
        QString now;
        try {
            m_driver.waitFor(place, [&] { return (now = keyboardPlace()) == place; });
        } catch (const DriverError&) {
            throw DriverError(QString("the keyboard is not in %1 but in %2").arg(place, now));
        }
    }

    QStringList walk(const QString& keys, int steps)
    {
        QStringList places;
        QString place = keyboardPlace();
        for (int step = 0; step < steps; ++step) {
            m_driver.key(keys);
            QString next;
            m_driver.waitFor("the keyboard to leave " + place,
                             [&] { return (next = keyboardPlace()) != place && next != onItsWay; });
            places << (place = next);
        }
        return places;
    }
};

WORKBENCH_TEST_MAIN(HostingTest)
#include "tst_hosting.moc"
