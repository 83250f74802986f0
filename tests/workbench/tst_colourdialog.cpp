#include "workbenchtest.h"

#include "od/odcmcolor.h"
#include "support/table.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/dialogs/idialogfactory.h"

using namespace workbench;

namespace {
constexpr unsigned byLayerAndByBlock = 1;
constexpr unsigned byLayerAsBlack = 2;
constexpr unsigned noTrueColors = 8;
constexpr unsigned several = 16;
} // namespace

/// The colour dialog in the running program.
class ColourDialogTest : public WorkbenchTest
{
    Q_OBJECT
public:
    using WorkbenchTest::WorkbenchTest;

private Q_SLOTS:
    void arrowsWalkThroughTheTable()
    {
        open(OdCmColor::fromIndex(240), noTrueColors);
        waitForName("Color 240");
        QVERIFY(!m_driver.hasItem("red"));
        QVERIFY(!m_driver.hasItem("byLayer"));
        // The last hue; below it is the same one, paler; the row goes on in the next.
        m_driver.key("Down");
        waitForName("Color 241");
        m_driver.key("Right");
        waitForName("Color 13");
        m_driver.key("End");
        waitForName("Color 249");
        m_driver.key("Down");
        m_driver.key("Left");
        waitForName("Color 239");
        m_driver.key("Tab");
        m_driver.waitFor("the keyboard in the standard colours", [&] { return m_driver.itemHasFocus("standard"); });
        m_driver.key("Right");
        waitForName("Red");
        m_driver.key("Left");
        m_driver.key("Right");
        waitForName("Yellow");
        m_driver.key("Return");
        QCOMPARE(answer(), OdCmColor::fromIndex(2));
    }

    void aClickChoosesExactly_data()
    {
        const auto row = velmtest::columns<QString, int, OdCmColor>("item", "flags", "color");
        row("a cell", "color18", 0, OdCmColor::fromIndex(18));
        row("the last grey", "color255", int(byLayerAndByBlock), OdCmColor::fromIndex(255));
        row("by layer", "byLayer", int(byLayerAndByBlock), OdCmColor(OdCmColor::kByLayer));
        row("by block", "byBlock", int(byLayerAndByBlock), OdCmColor(OdCmColor::kByBlock));
        row("black", "byLayer", int(byLayerAsBlack), OdCmColor(OdCmColor::kByLayer));
        row("none", "none", 64, OdCmColor(OdCmColor::kNone));
    }
    void aClickChoosesExactly()
    {
        QFETCH(QString, item);
        QFETCH(int, flags);
        open(OdCmColor::fromIndex(3), static_cast<unsigned>(flags));
        m_driver.clickItem(item);
        m_driver.waitFor("another colour", [&] { return m_driver.property("newName", "text") != "Green"; });
        // A second click on a button takes nothing back; on a cell, it would end the dialog if it came soon enough.
        if (!item.startsWith("color"))
            m_driver.clickItem(item);
        m_driver.clickItem("accept");
        QTEST(answer().value_or(OdCmColor::fromIndex(3)), "color");
    }

    void nothingIsChosenOfSeveralColours()
    {
        open(OdCmColor(OdCmColor::kByLayer), byLayerAndByBlock | several);
        QCOMPARE(m_driver.property("formerName", "text"), QVariant("*Varies*"));
        QVERIFY(!canAccept());
        m_driver.key("Return");
        m_driver.key("Right");
        waitForName("Color 18");
        QVERIFY(canAccept());
        m_driver.key("Return");
        QCOMPARE(answer(), OdCmColor::fromIndex(18));
    }

    void aTrueColourIsTyped()
    {
        open(OdCmColor::fromIndex(1), byLayerAndByBlock);
        enter("green", "12");
        waitForName("255,12,0");
        m_driver.key("ctrl+a");
        m_driver.key("BackSpace");
        m_driver.waitFor("the refusal", [&] { return !canAccept(); });
        m_driver.key("Return");
        m_driver.replaceText("128");
        waitForName("255,128,0");
        m_driver.key("Up");
        waitForName("255,129,0");
        QCOMPARE(m_driver.property("hex", "text"), QVariant("#ff8100"));
        enter("hex", "#0000f");
        m_driver.waitFor("the refusal", [&] { return !canAccept(); });
        m_driver.type("e");
        waitForName("0,0,254");
        QCOMPARE(m_driver.property("green", "text"), QVariant("0"));
        // What is left unfinished gives way to the colour.
        enter("hex", "#");
        m_driver.clickItem("blue");
        m_driver.waitFor("the colour", [&] { return m_driver.property("hex", "text") == "#0000fe" && canAccept(); });
        m_driver.key("Return");
        QCOMPARE(answer(), OdCmColor::fromRGB(0, 0, 254));
    }

    void aCancelledDialogGivesNothing()
    {
        for (const char* item : {"", "reject"}) {
            open(OdCmColor::fromIndex(1), 0);
            m_driver.key("Right");
            waitForName("Yellow");
            if (*item)
                m_driver.clickItem(item);
            else
                m_driver.key("Escape");
            QVERIFY(!answer());
        }
    }

private:
    void open(const OdCmColor& initial, unsigned flags)
    {
        m_isOver = false;
        m_driver.start([this, initial, flags] {
            m_answer = velm::dlgFactory()->colorDialog(nullptr, &initial, flags);
            m_isOver = true;
        });
        m_driver.waitForDialog("Select Colour");
        const bool isStandard = initial.isByACI() && initial.colorIndex() < 10;
        const QString grid = isStandard ? "standard" : "hues";
        m_driver.waitFor("the keyboard in the colours", [&] { return m_driver.itemHasFocus(grid); });
    }

    std::optional<OdCmColor> answer()
    {
        m_driver.waitFor("the answer", [this] { return m_isOver; });
        m_driver.waitForNoDialog();
        return m_answer;
    }

    void waitForName(const QString& name)
    {
        m_driver.waitFor(name, [&] { return m_driver.property("newName", "text") == name; });
    }
    void enter(const char* field, const QString& text)
    {
        m_driver.clickItem(field);
        m_driver.waitFor(field, [&] { return m_driver.itemHasFocus(field); });
        m_driver.replaceText(text);
    }
    bool canAccept() { return m_driver.property("accept", "enabled").toBool(); }

    std::optional<OdCmColor> m_answer;
    bool m_isOver = false;
};

WORKBENCH_TEST_MAIN(ColourDialogTest)
#include "tst_colourdialog.moc"
