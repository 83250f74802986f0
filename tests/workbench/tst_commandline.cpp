#include "wxtestmain.h"

#include "command/commandline.h"
#include "command/commands.h"

#include <wx/frame.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>

using namespace workbench;

namespace {

QString qt(const wxString& text)
{
    return QString::fromStdWString(text.ToStdWstring());
}

} // namespace

class CommandLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void typedLineIsLoggedBeforeItRuns();
    void enterAndEscapeAreTold();
    void upAndDownWalkThroughTheHistory();
    void processCommandKeepsWhatIsBeingTyped();
    void commandMayEnterAnother();
    void coloursReachBothFields();
    void commandsAreFoundByName_data();
    void commandsAreFoundByName();
    void commandsAreListed();
    void commandMayReplaceItself();

private:
    void press(int key, int modifiers = wxMOD_NONE)
    {
        const int before = m_keys;
        wxUIActionSimulator().Char(key, modifiers);
        QVERIFY(waitUntil([&] { return m_keys > before; }));
    }
    void type(const QString& text)
    {
        const QString expected = qt(m_line->input()->GetValue()) + text;
        wxUIActionSimulator().Text(text.toUtf8().constData());
        QVERIFY(waitUntil([&] { return qt(m_line->input()->GetValue()) == expected; }));
    }
    QString shown() const { return qt(m_line->input()->GetValue()); }

    wxFrame* m_frame = nullptr;
    CommandLine* m_line = nullptr;
    QStringList m_events;
    int m_keys = 0;
};

void CommandLineTest::init()
{
    m_events.clear();
    m_frame = new wxFrame(nullptr, wxID_ANY, "Command line", wxPoint(50, 50), wxSize(500, 300));
    m_line = new CommandLine(m_frame);
    m_line->onCommand = [this](const wxString& text) { m_events << "command " + qt(text); };
    m_line->onEnter = [this] { m_events << "enter"; };
    m_line->onEscape = [this] { m_events << "escape"; };
    m_line->input()->Bind(wxEVT_KEY_UP, [this](wxKeyEvent& event) {
        ++m_keys;
        event.Skip();
    });
    m_frame->Show();
    m_frame->Raise();
    QVERIFY(waitUntil([this] { return m_frame->IsActive() && m_line->IsShownOnScreen(); }));
    m_line->input()->SetFocus();
    QVERIFY(waitUntil([this] { return m_line->input()->HasFocus(); }));
}

void CommandLineTest::cleanup()
{
    m_frame->Destroy();
    wxTheApp->ProcessIdle(); // which deletes it
}

void CommandLineTest::typedLineIsLoggedBeforeItRuns()
{
    QString logWhenRun;
    m_line->onCommand = [&](const wxString& text) {
        m_events << "command " + qt(text);
        logWhenRun = qt(m_line->logText());
        m_line->log("done");
    };
    type("  zoom all ");
    press(WXK_RETURN);
    QCOMPARE(m_events, QStringList{"command zoom all"});
    QCOMPARE(logWhenRun, QString("> zoom all"));
    QCOMPARE(qt(m_line->logText()), QString("> zoom all\ndone"));
    QCOMPARE(shown(), QString());
}

void CommandLineTest::enterAndEscapeAreTold()
{
    press(WXK_RETURN);
    type("   ");
    press(WXK_RETURN);
    type("half a line");
    press(WXK_ESCAPE);
    QCOMPARE(m_events, (QStringList{"enter", "enter", "escape"}));
    QCOMPARE(shown(), QString());
    QCOMPARE(qt(m_line->logText()), QString());
    m_line->processEnter();
    m_line->processEscape();
    QCOMPARE(m_events, (QStringList{"enter", "enter", "escape", "enter", "escape"}));
}

void CommandLineTest::upAndDownWalkThroughTheHistory()
{
    press(WXK_UP); // nothing there yet
    QCOMPARE(shown(), QString());
    for (const char* command : {"line", "circle", "circle", "arc"})
        m_line->processCommand(command);
    type("te");
    QStringList seen;
    for (int i = 0; i < 4; ++i) { // the repeated one counts once, and the first one stays
        press(WXK_UP);
        seen << shown();
    }
    for (int i = 0; i < 4; ++i) {
        press(WXK_DOWN);
        seen << shown();
    }
    QCOMPARE(seen, (QStringList{"arc", "circle", "line", "line", "circle", "arc", "te", "te"}));
    type("xt"); // the insertion point is behind the draft
    QCOMPARE(shown(), QString("text"));
    press(WXK_UP);
    press(WXK_RETURN);
    QCOMPARE(m_events.last(), QString("command arc"));
    press(WXK_UP);
    QCOMPARE(shown(), QString("arc"));
}

void CommandLineTest::processCommandKeepsWhatIsBeingTyped()
{
    type("half");
    m_line->processCommand(" save ");
    QCOMPARE(m_events, QStringList{"command save"});
    QCOMPARE(shown(), QString("half"));
    m_line->processCommand("  ");
    QCOMPARE(m_events.last(), QString("enter"));
}

void CommandLineTest::commandMayEnterAnother()
{
    m_line->onCommand = [this](const wxString& text) {
        m_events << qt(text);
        if (text == "outer")
            m_line->processCommand("inner");
    };
    m_line->processCommand("outer");
    QCOMPARE(m_events, (QStringList{"outer", "inner"}));
    QCOMPARE(qt(m_line->logText()), QString("> outer\n> inner"));
    press(WXK_UP);
    QCOMPARE(shown(), QString("inner"));
}

void CommandLineTest::coloursReachBothFields()
{
    m_line->log("text");
    m_line->setColours(wxColour(1, 2, 3), wxColour(40, 50, 60), wxColour(70, 80, 90));
    QVERIFY(m_line->input()->GetForegroundColour() == wxColour(1, 2, 3));
    QVERIFY(m_line->input()->GetBackgroundColour() == wxColour(70, 80, 90));
    QVERIFY(m_line->GetBackgroundColour() == wxColour(40, 50, 60));
    QCOMPARE(qt(m_line->logText()), QString("text"));
}

void CommandLineTest::commandsAreFoundByName_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("called");
    QTest::newRow("a name") << "LAYER"
                            << "layer()";
    QTest::newRow("another case") << "laYer"
                                  << "layer()";
    QTest::newRow("a global name") << "_layer"
                                   << "layer()";
    QTest::newRow("a transparent global name") << "'_layer"
                                               << "layer()";
    QTest::newRow("an alias") << "la"
                              << "layer()";
    QTest::newRow("a global alias with arguments") << " _LA  a b "
                                                   << "layer(a b)";
    QTest::newRow("a tab before the argument") << "zoom\tall"
                                               << "zoom(all)";
    QTest::newRow("a longer name") << "layers"
                                   << "";
    QTest::newRow("marks only") << "_'"
                                << "";
    QTest::newRow("nothing") << ""
                             << "";
}

void CommandLineTest::commandsAreFoundByName()
{
    QFETCH(const QString, line);
    QFETCH(const QString, called);
    QString calls;
    Commands commands;
    commands.add("Layer", "Shows the layers", [&](const wxString& text) { calls += "layer(" + qt(text) + ')'; });
    commands.add("zoom", "Zooms", [&](const wxString& text) { calls += "zoom(" + qt(text) + ')'; });
    commands.addAlias("la", "LAYER");
    QCOMPARE(commands.run(line.toStdWString()), !called.isEmpty());
    QCOMPARE(calls, called);
}

void CommandLineTest::commandsAreListed()
{
    Commands commands;
    for (const char* name : {"zoom", "Open", "_hidden"})
        commands.add(name, wxString("help of ") + name, {});
    commands.addAlias("z", "zoom");
    QStringList names;
    for (const wxString& name : commands.names())
        names << qt(name);
    QCOMPARE(names, (QStringList{"HIDDEN", "OPEN", "ZOOM"}));
    QCOMPARE(qt(commands.help("Z")), QString("help of zoom"));
    QCOMPARE(qt(commands.help("nothing")), QString());
    QVERIFY(commands.contains("_HIDDEN"));
}

void CommandLineTest::commandMayReplaceItself()
{
    int calls = 0;
    Commands commands;
    commands.add("again", {}, [&](const wxString&) {
        commands.add("again", {}, [&](const wxString&) { calls += 10; });
        ++calls;
    });
    QVERIFY(commands.run("again") && commands.run("again"));
    QCOMPARE(calls, 11);
}

int main(int argc, char** argv)
{
    return runWxTest<CommandLineTest>(argc, argv);
}
#include "tst_commandline.moc"
