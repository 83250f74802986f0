#include "workbenchtest.h"

#include "od/oddbdatabase.h"

using namespace workbench;

/// The bar of current properties and the tabs of several open drawings, worked in the running program. Each test begins
/// with the small drawing open, alone.
class DrawingsTest : public WorkbenchTest
{
    Q_OBJECT
public:
    using WorkbenchTest::WorkbenchTest;

private Q_SLOTS:
    void init()
    {
        const QString file = write("small.dxf", smallDrawing());
        m_driver.ask([&] { openAlone(m_frame, file); });
        m_driver.waitFor("the drawing", [&] { return m_frame.canvas().drawnEntityCount() == 2; });
        waitForText("colorCombo", "ByLayer");
    }

    void aColourPickedInTheBarIsSeenOnTheLine()
    {
        const QColor red(255, 0, 0);
        const QColor magenta(255, 0, 255);
        m_driver.waitFor("the red line", [&] { return isColourAt(placeOnLine(), red); });
        m_driver.click(placeOnLine());
        m_driver.waitFor("the line to be selected", [&] { return m_frame.selection().entities().size() == 1; });
        QCOMPARE(m_driver.property("subject", "text"), QVariant("Line"));
        clickRow("colorCombo", "Magenta");
        waitForText("colorCombo", "Magenta");
        clickRow("lineWeightCombo", "0.50 mm");
        clickRow("lineTypeCombo", "Continuous");
        const auto* line = m_driver.ask([&] { return m_frame.selection().current().open<OdDbEntity>(); });
        QCOMPARE(line->color(), OdCmColor::fromIndex(6));
        QCOMPARE(line->lineWeight(), 50);
        QVERIFY(!line->linetypeId().isNull());
        m_driver.click(*m_frame.commandLine().input());
        m_driver.key("Escape");
        m_driver.waitFor("nothing to be selected", [&] { return m_frame.selection().entities().empty(); });
        waitForText("colorCombo", "ByLayer");
        m_driver.waitFor("the magenta line", [&] { return isColourAt(placeOnLine(), magenta); });
        // With nothing selected it is about new entities.
        clickRow("colorCombo", "Cyan");
        QCOMPARE(m_driver.ask([&] { return m_frame.documents().current()->database()->getCECOLOR(); }),
                 OdCmColor::fromIndex(4));
        QVERIFY(isColourAt(placeOnLine(), magenta));
    }

    void eachDrawingIsFoundAgainAsItWasLeft()
    {
        const auto fileOf = [&] {
            return m_driver.ask([&] { return velm::toQt(m_frame.documents().current()->fileName()); });
        };
        const auto scale = [&] { return m_driver.ask([&] { return m_frame.canvas().view().scale; }); };
        const QString first = fileOf();
        m_driver.ask([&] { m_frame.canvas().zoomBy(2.0, wxPoint(100, 100)); });
        const double zoomed = scale();
        const QString second = write("circle.dxf", "0\nSECTION\n2\nHEADER\n9\n$CECOLOR\n62\n2\n0\nENDSEC\n"
                                                   "0\nSECTION\n2\nENTITIES\n"
                                                   "0\nCIRCLE\n8\nRound\n10\n0\n20\n0\n40\n500\n0\nENDSEC\n0\nEOF\n");
        m_driver.command("OPEN " + second);
        m_driver.waitFor("the other drawing", [&] { return m_frame.canvas().drawnEntityCount() == 1; });
        waitForText("colorCombo", "Yellow");
        QVERIFY(scale() < zoomed);
        m_driver.clickItem("tab:small.dxf");
        m_driver.waitFor("the first drawing", [&] { return fileOf() == first; });
        QCOMPARE(scale(), zoomed);
        waitForText("colorCombo", "ByLayer");
        QVERIFY(m_driver.ask([&] { return m_frame.layers().table()->rowCount() == 3; }));
        // The keyboard is the command line's again; an open drawing is not read anew.
        m_driver.waitFor("the keyboard", [&] { return m_frame.commandLine().input()->HasFocus(); });
        m_driver.command("OPEN " + second);
        m_driver.waitFor("the second", [&] { return fileOf() == second; });
        QCOMPARE(m_driver.ask([&] { return m_frame.documents().openCount(); }), size_t(2));
        m_driver.key("ctrl+Tab");
        m_driver.waitFor("the first again", [&] { return fileOf() == first; });
        m_driver.clickItem("colorCombo");
        m_driver.key("Escape");
        m_driver.key("ctrl+shift+Tab");
        m_driver.waitFor("the second from within the bar", [&] { return fileOf() == second; });
        m_driver.command("NEXT");
        m_driver.waitFor("the first by its command", [&] { return fileOf() == first; });
        // The other one's mark, while this one is shown.
        m_driver.clickItem("close:circle.dxf");
        m_driver.waitFor("one tab", [&] { return !m_driver.hasItem("tab:circle.dxf"); });
        QCOMPARE(fileOf(), first);
        QCOMPARE(scale(), zoomed);
        m_driver.clickItem("close:small.dxf");
        m_driver.waitFor("no drawing", [&] { return !m_frame.documents().current(); });
        m_driver.waitFor("no tab", [&] { return !m_driver.hasItem("tab:small.dxf"); });
        QCOMPARE(m_driver.property("colorCombo", "enabled"), QVariant(false));
        QCOMPARE(m_driver.property("lineTypeCombo", "count"), QVariant(0));
    }

    void aDrawingMayCloseUnderAnOpenList()
    {
        for (const char* combo : {"lineTypeCombo", "colorCombo", "arrowHeadCombo"}) {
            m_driver.ask([&] { openAlone(m_frame, m_folder.filePath("small.dxf")); });
            m_driver.clickItem(combo);
            m_driver.waitFor("the list", [&] { return m_driver.hasItem("rows"); });
            m_driver.ask([&] { m_frame.documents().close(); });
            m_driver.waitFor("no list", [&] { return !m_driver.hasItem("rows"); });
        }
    }

private:
    QString shownIn(const QString& combo) { return m_driver.property(combo, "currentName").toString(); }

    void waitForText(const QString& combo, const QString& text)
    {
        QString last;
        try {
            m_driver.waitFor(text, [&] { return (last = shownIn(combo)) == text; });
        } catch (const DriverError&) {
            throw DriverError(QString("%1 shows \"%2\" and not \"%3\"").arg(combo, last, text));
        }
    }

    /// Clicks a row of the list that is open.
    void clickRow(const QString& combo, const QString& text)
    {
        m_driver.clickItem(combo);
        m_driver.waitFor("the list", [&] { return m_driver.hasItem("rows"); });
        const int count = m_driver.property("rows", "count").toInt();
        int row = 0;
        m_driver.waitFor("the row " + text, [&] {
            auto* rows = m_driver.property("rows", "model").value<QAbstractItemModel*>();
            for (row = 0; row < count; ++row) {
                const auto* object = rows->index(row, 0).data(0).value<QObject*>();
                for (const char* name : {"name", "lineTypeName", "lineWeightName", "arrowHeadName"})
                    if (object && object->property(name) == text)
                        return true;
            }
            return false;
        });
        const QPoint middle = m_driver.placeOfItem("rows");
        const double height = m_driver.property("rows", "contentHeight").toDouble() / count;
        const double top =
            m_driver.property("rows", "height").toDouble() / 2 + m_driver.property("rows", "contentY").toDouble();
        m_driver.click(middle + QPoint(0, qRound((row + 0.5) * height - top)));
        m_driver.waitFor("no list", [&] { return !m_driver.hasItem("rows"); });
    }

    /// On the screen, a point of the first line off the other one.
    QPoint placeOnLine()
    {
        const QPoint origin = m_driver.rectOf(m_frame.canvas()).topLeft();
        return m_driver.ask([&] {
            const wxPoint2DDouble point = m_frame.canvas().view().toScreen(2, 1);
            return origin + QPoint(qRound(point.m_x), qRound(point.m_y));
        });
    }

    /// Whether about this colour is seen there.
    bool isColourAt(QPoint place, QColor colour)
    {
        const QImage picture = m_driver.picture().copy(QRect(place - QPoint(2, 2), QSize(5, 5)));
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x) {
                const QColor seen = picture.pixelColor(x, y);
                if (qAbs(seen.red() - colour.red()) + qAbs(seen.green() - colour.green()) +
                        qAbs(seen.blue() - colour.blue()) <
                    90)
                    return true;
            }
        return false;
    }
};

WORKBENCH_TEST_MAIN(DrawingsTest)
#include "tst_drawings.moc"
