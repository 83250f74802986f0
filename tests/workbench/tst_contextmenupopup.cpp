#include "workbenchtest.h"

#include "host/themecolours.h"
#include "od/oddbdatabase.h"
#include "support/table.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/dialogs/idialogfactory.h"

#include <wx/notebook.h>

using namespace workbench;

/// The context menu of the canvas, worked by mouse and keyboard. Each test begins with the small drawing open and the
/// keyboard in the command line, and ends with no menu.
class ContextMenuPopupTest : public WorkbenchTest
{
    Q_OBJECT
public:
    using WorkbenchTest::WorkbenchTest;

private Q_SLOTS:
    void init()
    {
        openSmallDrawing();
        clickCommandLine();
    }

    void cleanup()
    {
        m_driver.waitForNoDialog();
        m_driver.waitForNoMenu();
    }

    void aClickSelectsAndEscapeLetsGo()
    {
        const QPoint onAlpha = placeOf(2, 1);
        const QColor before = m_driver.picture().pixelColor(onAlpha + QPoint(0, 3));
        m_driver.click(onAlpha + QPoint(2, 2));
        m_driver.waitFor("the selection", [&] { return selectedLayer() == "Alpha"; });
        m_driver.waitFor("a glow around the line",
                         [&] { return m_driver.picture().pixelColor(onAlpha + QPoint(0, 3)) != before; });
        waitForKeyboardInCommandLine();
        m_driver.key("Escape");
        m_driver.waitFor("no selection", [&] { return selectedLayer().empty(); });
        m_driver.click(placeOf(2, 4));
        m_driver.waitFor("the other selection", [&] { return selectedLayer() == "Beta"; });
        m_driver.click(placeOf(5, 5));
        m_driver.waitFor("no selection again", [&] { return selectedLayer().empty(); });
    }

    void aRightClickPicksAndOpensTheMenuThere()
    {
        const QPoint place = placeOf(2, 1);
        m_driver.openMenu(place);
        QCOMPARE(m_driver.ask([&] { return selectedLayer(); }), wxString("Alpha"));
        const QRect menu = m_driver.menuShape().boundingRect();
        QVERIFY2((menu.topLeft() - place).manhattanLength() <= 4, qPrintable(QDebug::toString(menu.topLeft() - place)));
        // The window is larger than the menu, but nothing of it is seen.
        const QColor popup = m_driver.ask([] { return qtGuiColour(ut::EGuiColor::Grey1); });
        const QColor canvas = m_driver.ask([] { return qtGuiColour(ut::EGuiColor::Grey0); });
        const QImage picture = m_driver.picture();
        QCOMPARE(picture.pixelColor(menu.topRight() + QPoint(-4, 2)), popup);
        QCOMPARE(picture.pixelColor(menu.topRight() + QPoint(6, -6)), canvas);
        m_driver.key("Escape");
    }

    void theKeyboardChoosesAnEntryWithAMark()
    {
        for (const bool shown : {true, false}) {
            m_driver.openMenu(placeOf(5, 5));
            m_driver.key("g");
            m_driver.waitFor("the grid to change", [&] { return m_frame.canvas().isGridShown() == shown; });
            m_driver.waitForNoMenu();
            waitForKeyboardInCommandLine();
        }
        QVERIFY(m_driver.ask([&] { return m_frame.commandLine().logText().Contains("> GRID\nGrid on"); }));
    }

    void theSubMenuSetsTheLayer()
    {
        QCOMPARE(m_driver.ask([&] { return currentLayer(); }), wxString("0"));
        m_driver.openMenu(placeOf(5, 5));
        const QRect alone = m_driver.menuShape().boundingRect();
        m_driver.key("l");
        m_driver.waitFor("the sub-menu beside the menu",
                         [&] { return m_driver.menuShape().boundingRect().right() > alone.right(); });
        // From the first layer to the last, where a line at the end would be in the way.
        m_driver.key("Down");
        m_driver.key("Down");
        m_driver.key("Return");
        m_driver.waitFor("the layer", [&] { return currentLayer() == "Beta"; });
        m_driver.waitForNoMenu();
        waitForKeyboardInCommandLine();
    }

    void anEntityIsErased()
    {
        m_driver.openMenu(placeOf(2, 4));
        m_driver.key("e");
        m_driver.waitFor("one entity less", [&] { return m_frame.canvas().drawnEntityCount() == 1; });
        QCOMPARE(m_driver.ask([&] { return selectedLayer(); }), wxString());
        waitForKeyboardInCommandLine();
        m_driver.key("F7");
        m_driver.waitFor("the keyboard to work", [&] { return m_frame.canvas().isGridShown(); });
        m_driver.command("GRID");
        m_driver.waitFor("no grid", [&] { return !m_frame.canvas().isGridShown(); });
    }

    void theMenuClosesAndTheKeyboardReturns_data()
    {
        const auto row = velmtest::columns<QString, QString>("from", "by");
        row("by Escape, to the command line", "input", "Escape");
        row("by Escape, to a page", "search", "Escape");
        row("by a click on the canvas", "input", "click");
        row("by a click on the canvas, from a page", "search", "click");
    }
    void theMenuClosesAndTheKeyboardReturns()
    {
        QFETCH(const QString, from);
        QFETCH(const QString, by);
        if (from == "search") {
            m_driver.clickItem("search");
            m_driver.waitFor("the keyboard in the page", [&] { return m_driver.itemHasFocus("search"); });
        }
        m_driver.openMenu(placeOf(5, 5));
        if (by == "Escape")
            m_driver.key(by);
        else
            m_driver.click(placeOf(0.5, 2.5));
        m_driver.waitForNoMenu();
        // A click on the canvas gives the keyboard to the command line as it always does.
        if (from == "search" && by == "Escape") {
            m_driver.waitFor("the keyboard in the page again", [&] { return m_driver.itemHasFocus("search"); });
            m_driver.type("be");
            m_driver.waitFor("the text in the page", [&] { return m_driver.property("search", "text") == "be"; });
            m_driver.key("Escape");
            m_driver.waitFor("an empty search field", [&] { return m_driver.property("search", "text") == ""; });
            return;
        }
        waitForKeyboardInCommandLine();
        m_driver.type("xyz");
        m_driver.waitFor("the text in the command line",
                         [&] { return m_frame.commandLine().input()->GetValue() == "xyz"; });
        m_driver.ask([&] { m_frame.commandLine().input()->Clear(); });
    }

    void theHostClosesTheMenu_data()
    {
        const auto row = velmtest::columns<QString>("by");
        row("for a modal dialog", "dialog");
        row("for a new engine", "engine");
        row("for new pages, with the theme", "theme");
        row("for another menu", "menu");
    }
    void theHostClosesTheMenu()
    {
        QFETCH(const QString, by);
        m_driver.openMenu(placeOf(5, 5));
        if (by == "dialog") {
            m_driver.start(
                [] { velm::dlgFactory()->showInfoMessage(L"Note", L"Text", nullptr, velm::MessageButtonStyle::OK); });
            m_driver.waitForDialog("Note");
            QVERIFY(!m_driver.hasMenu());
            m_driver.key("Return");
            m_driver.waitForNoDialog();
        } else if (by == "menu") {
            const QPoint second = placeOf(2, 1);
            m_driver.openMenu(second);
            m_driver.waitFor("the menu at its new place", [&] {
                return (m_driver.menuShape().boundingRect().topLeft() - second).manhattanLength() <= 4;
            });
            m_driver.key("Escape");
        } else {
            m_driver.ask([&] { m_frame.commandLine().processCommand(by == "engine" ? "REBUILD" : "THEME LIGHT"); });
            QVERIFY(!m_driver.hasMenu());
            m_driver.ask([&] { m_frame.commandLine().processCommand("THEME DARK"); });
        }
        m_driver.waitForNoMenu();
        waitForKeyboardInCommandLine();
        // The next one opens as ever.
        m_driver.openMenu(placeOf(5, 5));
        m_driver.key("Escape");
    }

    void menusStayOnTheScreen()
    {
        const QRect screen = m_driver.ask([] { return QGuiApplication::primaryScreen()->availableGeometry(); });
        const wxPoint position = m_driver.ask([&] { return m_frame.GetPosition(); });
        m_driver.ask([&] { m_frame.SetPosition(wxPoint(screen.right() - 300, screen.bottom() - 400)); });
        m_driver.waitFor("the window beyond the screen's edge",
                         [&] { return m_frame.canvas().GetScreenRect().GetRight() > screen.right(); });
        m_driver.openMenu(QPoint(screen.right() - 10, m_driver.rectOf(m_frame.canvas()).bottom() - 10));
        const QRegion alone = m_driver.menuShape();
        m_driver.key("l");
        m_driver.waitFor("the sub-menu", [&] { return m_driver.menuShape() != alone; });
        QVERIFY2(screen.contains(m_driver.menuShape().boundingRect()),
                 qPrintable(QDebug::toString(m_driver.menuShape())));
        m_driver.key("Escape");
        m_driver.key("Escape");
        m_driver.waitForNoMenu();
        m_driver.ask([&] { m_frame.SetPosition(position); });
        m_driver.waitFor("the window where it was", [&] { return m_frame.GetPosition() == position; });
    }

    void snappingRoundsTheCursorsCoordinates()
    {
        OdGePoint3d point;
        const auto former = m_driver.ask(
            [&] { return std::exchange(m_frame.canvas().onCursorMoved, [&](const OdGePoint3d& at) { point = at; }); });
        m_driver.command("SNAP");
        m_driver.click(placeOf(2.04, 1.03));
        m_driver.waitFor("whole coordinates", [&] { return point.x == 2.0 && point.y == 1.0; });
        m_driver.command("SNAP");
        m_driver.click(placeOf(4.04, 1.03));
        m_driver.waitFor("exact coordinates", [&] { return point.x > 4.0 && point.x < 4.1 && point.y != 1.0; });
        m_driver.ask([&] { m_frame.canvas().onCursorMoved = former; });
    }

private:
    wxString selectedLayer() const
    {
        const auto* entity = m_frame.selection().current().open<OdDbEntity>();
        return entity ? wxString(entity->layerId().open<OdDbLayerTableRecord>()->getName().c_str()) : wxString();
    }

    wxString currentLayer() const
    {
        const OdDbObjectId layer = m_frame.documents().current()->database()->currentLayer();
        return layer.open<OdDbLayerTableRecord>()->getName().c_str();
    }
};

WORKBENCH_TEST_MAIN(ContextMenuPopupTest)
#include "tst_contextmenupopup.moc"
