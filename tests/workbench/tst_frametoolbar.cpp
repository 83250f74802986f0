#include "workbenchtest.h"

#include "app/velmsession.h"

#include <QPainter>

#include <wx/toolbar.h>

using namespace workbench;

/// The tools of the program's window, found by their pictures and pressed with the mouse.
class FrameToolBarTest : public WorkbenchTest
{
    Q_OBJECT
public:
    using WorkbenchTest::WorkbenchTest;

private Q_SLOTS:
    void init()
    {
        openSmallDrawing();
        m_driver.ask([this] { m_frame.session().setTheme(ut::EGuiColorTheme::Dark); });
        // Away from the tools, which a mouse over them lights.
        m_driver.click(m_driver.rectOf(m_frame.canvas()).center());
    }

    void aToolRunsItsCommandAndShowsItsMark()
    {
        const QPoint grid = tool(QStringLiteral("grid"));
        const QPoint edge = grid - QPoint(13, 0);
        const QColor plain = m_driver.picture().pixelColor(edge);
        m_driver.click(grid);
        m_driver.waitFor("the grid", [this] { return m_frame.canvas().isGridShown(); });
        m_driver.waitFor("the mark", [&] { return m_driver.picture().pixelColor(edge) != plain; });
        // By another way, and the tool knows of it.
        m_driver.command("GRID");
        m_driver.click(m_driver.rectOf(m_frame.canvas()).center());
        QCOMPARE(tool(QStringLiteral("grid")), grid);

        const double scale = m_driver.ask([this] { return m_frame.canvas().view().scale; });
        m_driver.click(tool(QStringLiteral("zoom_in")));
        m_driver.waitFor("the larger drawing", [&] { return m_frame.canvas().view().scale > scale; });
        m_driver.click(tool(QStringLiteral("zoom_extents")));
        m_driver.waitFor("the whole drawing", [&] { return m_frame.canvas().view().scale == scale; });
        // What is typed is still a command: no tool has taken the keyboard.
        m_driver.type("CLOSE\n");
        m_driver.waitFor("no drawing", [this] { return m_frame.documents().current() == nullptr; });
    }

    void aToolIsPaleWhileItsCommandIsNotToBeHad()
    {
        tool(QStringLiteral("zoom_in"));
        const QPoint close = tool(QStringLiteral("close"));
        m_driver.click(close);
        m_driver.waitFor("the pale tools", [&] {
            return placeOf(QStringLiteral("close"), "dark").isNull() &&
                   placeOf(QStringLiteral("zoom_in"), "dark").isNull();
        });
        tool(QStringLiteral("open"));
    }

    void theToolsChangeWithTheTheme()
    {
        m_driver.click(tool(QStringLiteral("theme")));
        tool(QStringLiteral("open"), "light");
        QVERIFY(placeOf(QStringLiteral("open"), "dark").isNull());
        QCOMPARE(m_driver.ask([this] { return m_frame.session().theme(); }), ut::EGuiColorTheme::Light);
        m_driver.click(tool(QStringLiteral("layers"), "light"));
        m_driver.command("THEME DARK");
        tool(QStringLiteral("theme"));
    }

private:
    wxToolBar& bar() { return *m_frame.GetToolBar(); }

    /// Where on the screen the icon is drawn pixel by pixel, on the bar itself; null when it isn't.
    QPoint placeOf(const QString& icon, const char* theme)
    {
        const QRect rect = m_driver.rectOf(bar());
        const QImage picture = m_driver.picture().copy(rect).convertToFormat(QImage::Format_RGB32);
        const QImage drawn(QStringLiteral(":/toolicons/24/%1/%2.png").arg(QLatin1String(theme), icon));
        QImage wanted(drawn.size(), QImage::Format_RGB32);
        wanted.fill(picture.pixel(rect.width() - 8, rect.height() / 2));
        QPainter(&wanted).drawImage(0, 0, drawn);
        const auto isAt = [&](int left, int top) {
            for (int y = 0; y < wanted.height(); ++y)
                for (int x = 0; x < wanted.width(); ++x) {
                    const QRgb one = picture.pixel(left + x, top + y);
                    const QRgb other = wanted.pixel(x, y);
                    if (qAbs(qRed(one) - qRed(other)) > 4 || qAbs(qGreen(one) - qGreen(other)) > 4 ||
                        qAbs(qBlue(one) - qBlue(other)) > 4)
                        return false;
                }
            return true;
        };
        for (int top = 0; top <= picture.height() - wanted.height(); ++top)
            for (int left = 0; left <= picture.width() - wanted.width(); ++left)
                if (isAt(left, top))
                    return rect.topLeft() + QPoint(left, top);
        return {};
    }

    /// Waits for the icon and gives its middle.
    QPoint tool(const QString& icon, const char* theme = "dark")
    {
        QPoint place;
        m_driver.waitFor("the tool " + icon, [&] {
            place = placeOf(icon, theme);
            return !place.isNull();
        });
        return place + QPoint(12, 12);
    }

};

WORKBENCH_TEST_MAIN(FrameToolBarTest)
#include "tst_frametoolbar.moc"
