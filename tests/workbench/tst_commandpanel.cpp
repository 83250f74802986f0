#include "workbenchtest.h"

#include "app/velmsession.h"
#include "od/oddbdatabase.h"

#include <wx/textctrl.h>

using namespace workbench;

/// The commands that draw, worked in the running program through their panel, by clicks in the drawing and by typing.
class CommandPanelTest : public QObject
{
    Q_OBJECT
public:
    explicit CommandPanelTest(Driver& driver) : m_driver(driver), m_frame(*driver.app().frame()) {}

private Q_SLOTS:
    void init();
    void cleanup();
    void aLineIsDrawnWithThePanel();
    void pointsArePickedInTheDrawing();
    void theKeyboardGoesBackToThePanel();
    void aCircleIsTypedAndMeasured();
    void keysEndTheCommandFromThePanel();
    void theCommandGoesWithItsDrawing();
    void aNewEngineKeepsTheCommand();

private:
    CommandRun& run() { return m_frame.commandRun(); }
    void startCommand(const char* name);
    void waitForEnd();
    QString text(const char* item) { return m_driver.property(QLatin1String(item), "text").toString(); }
    void typeInto(const QString& item, const QString& text);
    /// On the screen.
    QPoint placeOf(double x, double y);
    template <typename T>
    std::vector<const T*> drawn();

    Driver& m_driver;
    MainFrame& m_frame;
    QTemporaryDir m_folder;
    QString m_file;
};

void CommandPanelTest::init()
{
    m_file = m_folder.filePath("small.dxf");
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(smallDrawing());
    file.close();
    m_driver.ask([&] { openAlone(m_frame, m_file); });
    m_driver.waitFor("the drawing", [&] { return m_frame.canvas().drawnEntityCount() == 2; });
}

void CommandPanelTest::cleanup()
{
    m_driver.ask([&] { run().escape(); });
}

void CommandPanelTest::startCommand(const char* name)
{
    m_driver.command(name);
    m_driver.waitFor("the panel", [&] { return m_driver.hasItem("commandName"); });
    QCOMPARE(text("commandName"), QString(name));
}

void CommandPanelTest::waitForEnd()
{
    m_driver.waitFor("the command's end", [&] { return !run().isRunning(); });
    m_driver.waitFor("the panel to go", [&] { return !m_driver.hasItem("commandName"); });
    m_driver.waitFor("the keyboard in the command line", [&] { return m_frame.commandLine().input()->HasFocus(); });
}

void CommandPanelTest::typeInto(const QString& item, const QString& text)
{
    m_driver.clickItem(item);
    m_driver.waitFor("the keyboard in the field", [&] { return m_driver.itemHasFocus(item); });
    m_driver.replaceText(text);
    m_driver.waitFor("the text in the field", [&] { return m_driver.property(item, "text") == text; });
}

QPoint CommandPanelTest::placeOf(double x, double y)
{
    return m_driver.ask([&] {
        const wxPoint2DDouble place = m_frame.canvas().view().toScreen(x, y);
        return velm::toQt(m_frame.canvas().ClientToScreen(wxPoint(wxRound(place.m_x), wxRound(place.m_y))));
    });
}

template <typename T>
std::vector<const T*> CommandPanelTest::drawn()
{
    return m_driver.ask([&] {
        std::vector<const T*> result;
        for (const OdDbObjectId& id : m_frame.documents().current()->database()->modelSpace()->entities())
            if (const auto* entity = id.open<T>())
                result.push_back(entity);
        return result;
    });
}

void CommandPanelTest::aLineIsDrawnWithThePanel()
{
    startCommand("LINE");
    QCOMPARE(text("prompt"), QString("First point"));
    QCOMPARE(m_driver.property("option:Undo", "enabled"), QVariant(false));
    typeInto("commandX", "1");
    m_driver.key("Tab");
    m_driver.waitFor("the keyboard in the next field", [&] { return m_driver.itemHasFocus("commandY"); });
    m_driver.replaceText("2");
    m_driver.key("Return");
    m_driver.waitFor("the next step", [&] { return text("prompt") == "Next point"; });
    QCOMPARE(text("commandX"), QString("1.0000"));
    m_driver.clickItem("commandRelative");
    m_driver.waitFor("fields that begin anew", [&] { return text("commandX") == "0.0000"; });
    // A text that is no length goes nowhere.
    typeInto("commandX", "4 apples");
    m_driver.clickItem("commandEnter");
    m_driver.waitFor("the mark", [&] { return !m_driver.property("commandX", "error").toString().isEmpty(); });
    typeInto("commandX", "3");
    m_driver.clickItem("commandEnter");
    m_driver.waitFor("the line", [&] { return m_frame.canvas().drawnEntityCount() == 3; });
    QCOMPARE(drawn<OdDbLine>().back()->startPoint.y, 2.0);
    QCOMPARE(drawn<OdDbLine>().back()->endPoint.x, 4.0);
    QCOMPARE(m_driver.ask([&] { return m_frame.entities().table()->rowCount(); }), 3);
    m_driver.clickItem("option:Undo");
    m_driver.waitFor("no line", [&] { return m_frame.canvas().drawnEntityCount() == 2; });
    QCOMPARE(text("prompt"), QString("Next point"));
    m_driver.clickItem("commandFinish");
    waitForEnd();
    QCOMPARE(drawn<OdDbLine>().size(), std::size_t(2));
}

void CommandPanelTest::pointsArePickedInTheDrawing()
{
    const auto accent = [&] {
        const wxColour colour = m_frame.canvas().accent();
        return m_driver.countPixels(m_frame.canvas(), qRgb(colour.Red(), colour.Green(), colour.Blue()));
    };
    startCommand("LINE");
    m_driver.click(placeOf(2, 4));
    m_driver.waitFor("the next step", [&] { return text("prompt") == "Next point"; });
    QVERIFY(m_driver.ask([&] { return m_frame.selection().entities().empty(); }));
    QCOMPARE(accent(), 0);
    m_driver.moveMouse(placeOf(8, 4));
    m_driver.waitFor("a line that follows the cursor", [&] { return accent() > 20; });

    m_driver.clickItem("commandPick");
    m_driver.waitFor("a panel that waits", [&] { return run().isPicking(); });
    QCOMPARE(m_driver.property("commandX", "enabled"), QVariant(false));
    m_driver.click(placeOf(8, 1));
    m_driver.waitFor("the line", [&] { return m_frame.canvas().drawnEntityCount() == 3; });
    QCOMPARE(m_driver.property("commandX", "enabled"), QVariant(true));
    QVERIFY(qAbs(drawn<OdDbLine>().back()->endPoint.x - 8) < 0.1);
    QVERIFY(qAbs(drawn<OdDbLine>().back()->startPoint.y - 4) < 0.1);
    m_driver.waitFor("the keyboard in the panel again", [&] { return m_driver.itemHasFocus("commandPick"); });
    // What is typed at the command line goes on from there.
    m_driver.command("@0,3");
    m_driver.waitFor("another line", [&] { return m_frame.canvas().drawnEntityCount() == 4; });
    m_driver.type("zoom\n");
    m_driver.waitFor("the whole drawing", [&] { return m_frame.canvas().isFitted(); });
    m_driver.type("close\n");
    waitForEnd();
    QCOMPARE(drawn<OdDbLine>().size(), std::size_t(5));
    QVERIFY(m_driver.ask([&] { return m_frame.documents().current() != nullptr; }));
    QVERIFY(qAbs(drawn<OdDbLine>().back()->endPoint.x - 2) < 0.1);
    // A click selects again.
    m_driver.click(placeOf(5, 2.5));
    m_driver.waitFor("a selected line", [&] { return m_frame.selection().entities().size() == 1; });
}

void CommandPanelTest::aCircleIsTypedAndMeasured()
{
    startCommand("CIRCLE");
    m_driver.click(placeOf(5, 2));
    m_driver.waitFor("the radius", [&] { return text("prompt") == "Radius"; });
    m_driver.clickItem("option:Diameter");
    m_driver.waitFor("the diameter", [&] { return text("prompt") == "Diameter"; });
    typeInto("commandLength", "1.5");
    m_driver.key("Return");
    waitForEnd();
    QCOMPARE(drawn<OdDbCircle>().size(), std::size_t(1));
    QCOMPARE(drawn<OdDbCircle>().back()->radius, 0.75);
    startCommand("CIRCLE");
    m_driver.click(placeOf(5, 2));
    m_driver.waitFor("the radius", [&] { return text("prompt") == "Radius"; });
    m_driver.click(placeOf(5, 3));
    waitForEnd();
    QVERIFY(qAbs(drawn<OdDbCircle>().back()->radius - 1) < 0.1);
}

void CommandPanelTest::keysEndTheCommandFromThePanel()
{
    for (const char* key : {"Escape", "Return"}) {
        startCommand("LINE");
        m_driver.clickItem("commandX");
        m_driver.waitFor("the keyboard in the field", [&] { return m_driver.itemHasFocus("commandX"); });
        m_driver.key(key);
        waitForEnd();
    }
    // Escape takes a text back first.
    startCommand("LINE");
    typeInto("commandX", "7");
    m_driver.key("Escape");
    m_driver.waitFor("the former text", [&] { return text("commandX") == "0.0000"; });
    QVERIFY(m_driver.ask([&] { return run().isRunning(); }));
    m_driver.clickItem("closeCommand");
    waitForEnd();
    // While the panel waits, the keyboard is the command line's, and Escape ends the picking first.
    startCommand("LINE");
    m_driver.clickItem("commandPick");
    m_driver.waitFor("a panel that waits", [&] { return run().isPicking(); });
    QCOMPARE(m_driver.property("closeCommand", "enabled"), QVariant(false));
    m_driver.key("Escape");
    m_driver.waitFor("the panel", [&] { return !run().isPicking(); });
    m_driver.key("Escape");
    waitForEnd();
}

void CommandPanelTest::theKeyboardGoesBackToThePanel()
{
    const auto waitForField = [this] {
        m_driver.waitFor("the keyboard in the field", [&] { return m_driver.itemHasFocus("commandX"); });
    };
    startCommand("LINE");
    m_driver.clickItem("commandX");
    waitForField();
    // From a click, which needs no picking, with the values of the next step.
    m_driver.click(placeOf(2, 4));
    m_driver.waitFor("the next step", [&] { return text("prompt") == "Next point"; });
    waitForField();
    m_driver.replaceText("7");
    m_driver.waitFor("the text in the field", [&] { return text("commandX") == "7"; });
    // From a picking that Escape ends.
    m_driver.clickItem("commandPick");
    m_driver.waitFor("the keyboard in the command line",
                     [&] { return run().isPicking() && m_frame.commandLine().input()->HasFocus(); });
    m_driver.key("Escape");
    m_driver.waitFor("the keyboard in the panel", [&] { return m_driver.itemHasFocus("commandPick"); });
    QVERIFY(m_driver.ask([&] { return !m_frame.commandLine().input()->HasFocus() && run().isRunning(); }));
    // Enter picks again.
    m_driver.key("Return");
    m_driver.waitFor("the keyboard in the command line",
                     [&] { return run().isPicking() && m_frame.commandLine().input()->HasFocus(); });
    // A point that is typed leaves the keyboard where it was typed.
    m_driver.type("8,1\n");
    m_driver.waitFor("the line", [&] { return m_frame.canvas().drawnEntityCount() == 3; });
    QVERIFY(m_driver.ask([&] { return m_frame.commandLine().input()->HasFocus(); }));
    // So does a click of who was there.
    m_driver.click(placeOf(8, 4));
    m_driver.waitFor("another line", [&] { return m_frame.canvas().drawnEntityCount() == 4; });
    m_driver.type("\n");
    waitForEnd();
}

void CommandPanelTest::theCommandGoesWithItsDrawing()
{
    startCommand("LINE");
    typeInto("commandX", "7");
    m_driver.key("ctrl+w"); // the page hands it on
    waitForEnd();
    QVERIFY(m_driver.ask([&] { return m_frame.documents().current() == nullptr; }));
    m_driver.command("LINE");
    m_driver.waitFor("the log", [&] { return m_frame.commandLine().logText().EndsWith("No drawing is open."); });
    QVERIFY(!m_driver.hasItem("commandName"));

    m_driver.ask([&] { m_frame.openDrawing(velm::wxFromQt(m_file)); });
    startCommand("CIRCLE");
    m_driver.clickItem("close:small.dxf");
    waitForEnd();
}

void CommandPanelTest::aNewEngineKeepsTheCommand()
{
    startCommand("LINE");
    m_driver.command("0,0");
    m_driver.command("REBUILD");
    m_driver.waitFor("the panel", [&] { return m_driver.hasItem("prompt") && text("prompt") == "Next point"; });
    m_driver.clickItem("option:Undo");
    m_driver.waitFor("the first step", [&] { return text("prompt") == "First point"; });
}

int main(int argc, char** argv)
{
    return runInWorkbench<CommandPanelTest>(argc, argv);
}

#include "tst_commandpanel.moc"
