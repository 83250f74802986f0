#include "workbenchtest.h"

#include "app/canvastip.h"
#include "desktop/desktop.h"
#include "host/themecolours.h"
#include "support/table.h"
#include "velm/units/settings.h"

#include <wx/notebook.h>

using namespace workbench;

/// Popups and tool tips above the program's window, on two monitors. Each test begins with the small drawing open, the
/// window on the left monitor, its page of screens shown, and the keyboard in the command line.
class PopupsTest : public WorkbenchTest
{
    Q_OBJECT
public:
    using WorkbenchTest::WorkbenchTest;

private Q_SLOTS:
    void init()
    {
        m_driver.ask([&] {
            velm::Settings::instance()->setTooltips(true);
            velm::Settings::instance()->setTooltipDelay(50);
            m_frame.SetSize(1000, 760);
            m_frame.showPanel("Screens");
        });
        openSmallDrawing();
        moveFrame({60, 30});
        clickCommandLine();
    }

    void cleanup()
    {
        m_driver.ask([&] { m_frame.screens().popup()->core()->requestClose(); });
    }

    void aFramesBoundsAreTheWindowManagers()
    {
        const HWND window = m_driver.ask([&] { return desktop::nativeWindowOf(m_frame); });
        RECT bounds{};
        QCOMPARE(m_driver.ask([&] {
            return DwmGetWindowAttribute(window, DWMWA_EXTENDED_FRAME_BOUNDS, &bounds, sizeof bounds);
        }),
                 0);
        // What the manager made of it is the outermost window around it.
        quintptr outermost = 0;
        for (quintptr next = reinterpret_cast<quintptr>(window); next != 0; next = parentOnServer(next))
            outermost = next;
        const QRect real = serverRect(outermost);
        QCOMPARE(QRect(bounds.left, bounds.top, bounds.right - bounds.left, bounds.bottom - bounds.top), real);
        QVERIFY(real != serverRect(reinterpret_cast<quintptr>(window)));
    }

    void aPopupOpensBesideItsButtonWithTheKeyboard()
    {
        openPopup();
        const QRect button = buttonRect();
        const QRect shown = m_driver.ask([&] { return popup()->geometry(); });
        QCOMPARE(serverRect(m_driver.ask([&] { return popup()->winId(); })), shown);
        QVERIFY2(shown.top() == button.bottom() + 3 || shown.bottom() == button.top() - 1,
                 qPrintable(QDebug::toString(shown)));
        QCOMPARE(shown.left(), button.left());
        m_driver.key("ctrl+a");
        m_driver.type("200");
        m_driver.key("Return");
        m_driver.waitFor("what was typed", [&] { return m_driver.property("length", "value") == 200; });
        QVERIFY(m_driver.property("converted", "rows").toList().value(1).toMap().value("value") == "200");
    }

    void aPopupCloses_data()
    {
        const auto row = velmtest::columns<QString>("by");
        for (const char* by : {"Escape", "the canvas", "another page", "the button", "the host", "another button"})
            row(by, by);
    }
    void aPopupCloses()
    {
        QFETCH(const QString, by);
        openPopup();
        int closed = 0;
        const auto connection = m_driver.ask([&] {
            return QObject::connect(m_frame.screens().popup()->core(), &velm::TransientPopupCore::closed,
                                    [&closed] { ++closed; });
        });
        if (by == "Escape")
            m_driver.key("Escape");
        else if (by == "the canvas")
            m_driver.click(placeOf(5, 5));
        else if (by == "another page")
            m_driver.clickItem("search");
        else if (by == "the button")
            m_driver.clickItem("convert");
        else if (by == "the host")
            m_driver.ask([&] { m_frame.screens().popup()->core()->requestClose(); });
        else
            m_driver.click(*m_frame.commandLine().input());
        m_driver.waitFor("no popup", [&] { return !popup()->isVisible(); });
        m_driver.waitFor("the keyboard out of it", [&] { return QGuiApplication::focusWindow() != popup(); });
        // The keyboard works where it is now, and nothing opened the popup again.
        clickCommandLine();
        QCOMPARE(m_driver.ask([&] { return popup()->isVisible(); }), false);
        QCOMPARE(closed, 1);
        QVERIFY(!m_driver.ask([&] { return m_frame.screens().popup()->isHeld(); }));
        m_driver.ask([&] { QObject::disconnect(connection); });
        openPopup();
    }

    void aPopupFollowsTheWindowToAnotherMonitor()
    {
        openPopup();
        const QPoint before = m_driver.ask([&] { return popup()->position(); });
        for (const QPoint offset : {QPoint(40, 25), QPoint(1290, 10)}) {
            moveFrame(QPoint(60, 30) + offset);
            m_driver.waitFor("the popup beside its button", [&] { return popup()->position() == before + offset; });
            m_driver.waitFor("the popup there on the server",
                             [&] { return serverRect(popup()->winId()).topLeft() == before + offset; });
        }
        m_driver.waitFor("the popup on the right monitor",
                         [&] { return popup()->isVisible() && popup()->screen()->name() == "right"; });
        m_driver.waitFor("the page to name the right monitor", [&] {
            return m_driver.property("windowRows", "rows").toList().value(0).toMap().value("value") == "right";
        });
    }

    void aMonitorIsUnpluggedUnderAPopup()
    {
        moveFrame({1350, 30});
        openPopup();
        m_driver.waitFor("the popup on the right monitor", [&] { return serverRect(popup()->winId()).left() >= 1280; });
        QCOMPARE(QProcess::execute("xrandr", {"--delmonitor", "right"}), 0);
        m_driver.waitFor("one monitor", [&] { return m_frame.screens().monitors().size() == 1; });
        const QRect left(0, 0, 1280, 900);
        m_driver.waitFor("the popup closed, or on the monitor that is left",
                         [&] { return !popup()->isVisible() || left.contains(popup()->geometry()); });
        QCOMPARE(QProcess::execute("xrandr", {"--setmonitor", "right", "1280/338x900/238+1280+0", "none"}), 0);
        m_driver.waitFor("two monitors", [&] { return m_frame.screens().monitors().size() == 2; });
        moveFrame({60, 30});
        clickCommandLine();
        openPopup();
    }

    void aTipStaysOnTheScreen_data()
    {
        // Where the end of a line is to be, and where the tip has to stand beside the mouse.
        const auto row = velmtest::columns<QPoint, QPoint>("mouse", "side");
        row("in the middle, lower right", QPoint(600, 400), QPoint(1, 1));
        row("at the left monitor's right edge, lower left", QPoint(1275, 400), QPoint(-1, 1));
        row("at the right monitor's left edge, lower right", QPoint(1284, 400), QPoint(1, 1));
        row("at the bottom, upper right", QPoint(500, 890), QPoint(1, -1));
        row("in the corner of the desktop, upper left", QPoint(2550, 893), QPoint(-1, -1));
        row("at the desktop's left edge, lower right", QPoint(4, 400), QPoint(1, 1));
    }
    void aTipStaysOnTheScreen()
    {
        QFETCH(const QPoint, mouse);
        QFETCH(const QPoint, side);
        // What lies at the mouse is a point of the line from (0, 0) to (10, 5).
        const QPoint now = placeOf(2, 1);
        const QPoint frame = m_driver.ask([&] { return velm::toQt(m_frame.GetPosition()); });
        m_driver.ask([&] { m_frame.SetPosition(velm::wxFromQt(frame + mouse - now)); });
        m_driver.waitFor("the line at the place", [&] { return placeOf(2, 1) == mouse; });
        rest(mouse);
        m_driver.waitFor("the tip", [&] { return isTipShown(); });
        const TipWindow& tip = m_frame.canvasTip().window();
        QCOMPARE(m_driver.ask([&] { return tip.text(); }).section('\n', 1), QString("Layer: Alpha"));
        QVERIFY(m_driver.ask([&] { return tip.text(); }).startsWith("Line"));
        const QRect shown = m_driver.ask([&] { return tip.geometry(); });
        const QRect monitor = m_driver.ask([&] { return QGuiApplication::screenAt(mouse)->geometry(); });
        QVERIFY2(monitor.contains(shown), qPrintable(QDebug::toString(shown)));
        QCOMPARE(QPoint(shown.left() > mouse.x() ? 1 : -1, shown.top() > mouse.y() ? 1 : -1), side);
        QVERIFY(!shown.contains(mouse));
        QCOMPARE(serverRect(m_driver.ask([&] { return tip.winId(); })), shown);
        const QColor edge = m_driver.ask([] { return qtGuiColour(ut::EGuiColor::Grey6); });
        m_driver.waitFor("the tip's edge on the screen", [&] {
            QScreen* screen = QGuiApplication::screenAt(mouse);
            return screen->grabWindow(0).toImage().pixelColor(shown.bottomRight() - monitor.topLeft()) == edge;
        });
        waitForKeyboardInCommandLine();
    }

    void aTipGoesWithTheMouseAndTheSettings()
    {
        int shown = 0;
        int moves = 0;
        const TipWindow& tip = m_frame.canvasTip().window();
        const auto connection = m_driver.ask(
            [&] { return QObject::connect(&tip, &QWindow::visibleChanged, [&](bool visible) { shown += visible; }); });
        const auto former = m_driver.ask([&] {
            velm::Settings::instance()->setTooltips(false);
            velm::Settings::instance()->setTooltipDelay(1);
            return std::exchange(m_frame.canvas().onCursorMoved, [&](const OdGePoint3d&) { ++moves; });
        });
        rest(placeOf(2, 1));
        m_driver.waitFor("the mouse on the line", [&] { return moves > 0; });
        QCOMPARE(m_driver.ask([&] { return shown; }), 0);
        m_driver.ask([] { velm::Settings::instance()->setTooltips(true); });
        rest(placeOf(2, 4));
        m_driver.waitFor("the tip of the other line", [&] { return isTipShown() && tip.text().endsWith("Beta"); });
        for (const QPoint place : {placeOf(5, 4.5), m_driver.rectOf(m_frame.commandLine()).center()}) {
            m_driver.moveMouse(place);
            m_driver.waitFor("no tip", [&] { return !isTipShown(); });
            rest(placeOf(2, 4));
            m_driver.waitFor("the tip again", [&] { return isTipShown(); });
        }
        m_driver.ask([&] { m_frame.commandLine().processCommand("CLOSE"); });
        m_driver.waitFor("no tip without its drawing", [&] { return !isTipShown(); });
        m_driver.ask([&] {
            QObject::disconnect(connection);
            m_frame.canvas().onCursorMoved = former;
        });
    }

private:
    void moveFrame(QPoint place)
    {
        m_driver.ask([&] { m_frame.SetPosition(wxPoint(place.x(), place.y())); });
        m_driver.waitFor("the window in its place", [&] {
            return m_frame.GetPosition() == wxPoint(place.x(), place.y()) &&
                   m_frame.canvas().GetScreenRect().x >= place.x();
        });
    }

    QWindow* popup()
    {
        return m_driver.ask([&]() -> QWindow* {
            for (wxWindow* page : m_frame.lowerPanels().GetChildren())
                if (const auto* panel = dynamic_cast<PagePanel*>(page))
                    if (auto* window = panel->root()->findChild<QWindow*>("converter"))
                        return window;
            return nullptr;
        });
    }

    void openPopup()
    {
        m_driver.clickItem("convert");
        m_driver.waitFor("the popup with the keyboard", [&] { return popup()->isVisible() && popup()->isActive(); });
    }

    /// Of the program's thread: where the X server has the window.
    static QRect serverRect(quintptr window)
    {
        const QString text = askServer(window, "-stats");
        const auto number = [&](const char* label) {
            return QRegularExpression(QString("%1: +(-?\\d+)").arg(label)).match(text).captured(1).toInt();
        };
        return QRect(number("Absolute upper-left X"), number("Absolute upper-left Y"), number("Width"),
                     number("Height"));
    }

    /// 0 when that is the root.
    static quintptr parentOnServer(quintptr window)
    {
        const QString text = askServer(window, "-tree");
        const auto id = [&](const char* label) {
            return QRegularExpression(QString("%1 window id: 0x([0-9a-f]+)").arg(label)).match(text).captured(1);
        };
        return id("Root") == id("Parent") ? 0 : id("Parent").toULongLong(nullptr, 16);
    }

    static QString askServer(quintptr window, const QString& option)
    {
        QProcess process;
        process.start("xwininfo", {option, "-id", QString::number(window)});
        process.waitForFinished();
        return process.readAllStandardOutput();
    }

    QRect buttonRect()
    {
        m_driver.placeOfItem("convert"); // waits for it
        return m_driver.ask([&] {
            for (PagePanel* panel : m_driver.app().pages().pages())
                if (auto* button = panel->root()->findChild<QQuickItem*>("convert"))
                    return button->mapRectToScene(QRectF(0, 0, button->width(), button->height()))
                        .toRect()
                        .translated(velm::toQt(panel->ClientToScreen(wxPoint())));
            return QRect();
        });
    }

    /// Brings the mouse to a place: a window that it comes into hears of the next move only.
    void rest(QPoint place)
    {
        m_driver.moveMouse(place + QPoint(0, 1));
        m_driver.moveMouse(place);
    }

    bool isTipShown() const { return m_frame.canvasTip().window().isVisible(); }
};

WORKBENCH_TEST_MAIN(PopupsTest)
#include "tst_popups.moc"
