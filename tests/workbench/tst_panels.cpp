#include "workbenchtest.h"

#include "od/oddbdatabase.h"

using namespace workbench;

/// The panels about what is in the drawing, worked in the running program. Each test begins with a drawing of two texts
/// and a line open.
class PanelsTest : public WorkbenchTest
{
    Q_OBJECT
public:
    using WorkbenchTest::WorkbenchTest;

private Q_SLOTS:
    void init()
    {
        const QString file = write("texts.dxf", "0\nSECTION\n2\nENTITIES\n"
                   "0\nTEXT\n8\n0\n10\n0\n20\n0\n40\n2\n1\nHall\n"
                   "0\nTEXT\n8\n0\n10\n0\n20\n9\n40\n2\n1\nStairs\n"
                   "0\nLINE\n8\nWalls\n10\n0\n20\n0\n11\n10\n21\n5\n"
                   "0\nENDSEC\n0\nEOF\n");
        m_driver.ask([&] {
            openAlone(m_frame, file);
            m_frame.showPanel("Structure");
            m_frame.showPanel("Properties");
        });
        m_driver.waitFor("the tree", [&] { return m_driver.hasItem("structure"); });
    }

    void aTextThatIsStillTypedGoesToItsOwnEntity()
    {
        OdDbText* hall = text(L"Hall");
        const OdDbText* stairs = text(L"Stairs");
        select(*hall);
        startTyping("Kitchen");
        select(*stairs);
        m_driver.waitFor("the other text", [&] { return m_driver.property("editor", "text") == "Stairs"; });
        m_driver.click(*m_frame.commandLine().input());
        m_driver.waitFor("the keyboard elsewhere", [&] { return m_frame.commandLine().input()->HasFocus(); });
        QCOMPARE(stairs->textString, OdString(L"Stairs"));
        QCOMPARE(hall->textString, OdString(L"Kitchen"));
        m_driver.waitFor("the tree to know", [&] {
            const QModelIndex space = m_frame.structure().tree()->index(0, 0, m_frame.structure().tree()->index(0, 0));
            return m_frame.structure().tree()->index(0, 0, space).data() == "Text \"Kitchen\"";
        });
    }

    void aDrawingMayCloseUnderATextThatIsTyped()
    {
        select(*text(L"Hall"));
        startTyping("Kitchen");
        m_driver.ask([&] { m_frame.documents().close(); });
        m_driver.waitFor("an empty page", [&] { return m_driver.hasItem("noProperties"); });
        m_driver.click(*m_frame.commandLine().input());
        m_driver.waitFor("the keyboard elsewhere", [&] { return m_frame.commandLine().input()->HasFocus(); });
        QVERIFY(!m_driver.hasItem("structure"));
    }

    void aLayerIsHiddenByASwitch()
    {
        const auto drawn = [this] { return m_driver.ask([&] { return m_frame.canvas().drawnEntityCount(); }); };
        m_driver.waitFor("the drawing", [&] { return m_frame.canvas().drawnEntityCount() == 3; });
        select(*text(L"Hall"));
        m_driver.clickItem("property:Layer shown");
        m_driver.waitFor("the line alone", [&] { return m_frame.canvas().drawnEntityCount() == 1; });
        QCOMPARE(m_driver.ask([&] { return m_frame.selection().current().isNull(); }), false);
        m_driver.command("SHOW");
        m_driver.waitFor("all of it", [&] { return m_frame.canvas().drawnEntityCount() == 3; });
        QCOMPARE(drawn(), size_t(3));
    }

    void aLayerIsEditedInItsTable()
    {
        const auto layer = [this](const wchar_t* name) {
            return m_driver.ask([&] { return m_frame.documents().current()->database()->findLayer(name); });
        };
        const auto typeName = [this](const QString& name) {
            m_driver.key("F2");
            m_driver.waitFor("the keyboard in the cell", [&] { return m_driver.itemHasFocus("editor"); });
            m_driver.replaceText(name);
            m_driver.key("Return");
        };
        m_driver.ask([&] { m_frame.showPanel("Layers"); });
        m_driver.waitFor("the drawing", [&] { return m_frame.canvas().drawnEntityCount() == 3; });
        m_driver.clickItem("layers/Walls/on");
        m_driver.waitFor("the texts alone", [&] { return m_frame.canvas().drawnEntityCount() == 2; });
        QVERIFY(layer(L"Walls")->isOff());
        m_driver.clickItem("layers/Walls/on");
        m_driver.waitFor("all of it", [&] { return m_frame.canvas().drawnEntityCount() == 3; });

        m_driver.clickItem("layers/Walls/name");
        typeName("0");
        m_driver.waitForDialog("Edit");
        QVERIFY(m_driver.dialogText().contains("already"));
        m_driver.key("Return");
        m_driver.waitForNoDialog();
        m_driver.waitFor("the keyboard in the table", [&] { return m_driver.itemHasFocus("layers"); });
        typeName("Outside");
        m_driver.waitFor("the name in the drawing", [&] { return layer(L"Outside") != nullptr; });

        m_driver.clickItem("layers/Outside/color");
        m_driver.waitFor("the colours", [&] { return m_driver.hasOpenList("choice"); });
        m_driver.key("Home");
        m_driver.key("Return");
        m_driver.waitFor("the colour in the drawing",
                         [&] { return layer(L"Outside")->color() == OdCmColor::fromIndex(1); });
        QVERIFY(m_driver.ask([&] { return m_frame.layers().canRename(); }));
    }

    void aDimensionStyleIsEditedInItsTable()
    {
        m_driver.ask([&] { m_frame.showPanel("Dimension Styles"); });
        m_driver.clickItem("dimStyles/Standard/textheight");
        m_driver.clickItem("dimStyles/Standard/textheight");
        m_driver.waitFor("the keyboard in the cell", [&] { return m_driver.itemHasFocus("editor"); });
        m_driver.replaceText("2.5");
        m_driver.key("Return");
        m_driver.waitFor("the height in the drawing", [&] {
            return m_frame.documents().current()->database()->findDimStyle(L"Standard")->dimtxt() == 2.5;
        });
    }

    void aDoubleClickInTheTreeShowsTheBranch()
    {
        m_driver.clickItem("structure");
        m_driver.waitFor("the keyboard in the tree", [&] { return m_driver.itemHasFocus("structure"); });
        m_driver.key("Home");
        m_driver.key("Down");
        m_driver.key("Return");
        m_driver.waitFor("the branch of the model space", [&] { return m_driver.hasItem("branch:Text \"Stairs\""); });
        m_driver.clickItem("branch:Text \"Stairs\"");
        const OdDbObjectId stairs = text(L"Stairs")->objectId();
        m_driver.waitFor("the selection to follow", [&] { return m_frame.selection().current() == stairs; });
        m_driver.command("ERASE");
        m_driver.waitFor("the row to go", [&] { return m_frame.branch().rows()->rowCount() == 2; });
        QVERIFY(m_driver.hasItem("branch:Text \"Hall\""));
        m_driver.clickItem("crumb:0");
        m_driver.waitFor("the top level", [&] { return m_driver.hasItem("branch:Layers"); });
    }

    void theTreeKeepsItsOpenRowsInANewEngine()
    {
        select(*text(L"Hall"));
        m_driver.waitFor("the open rows", [&] { return m_driver.property("structure", "count").toInt() > 6; });
        const int count = m_driver.property("structure", "count").toInt();
        m_driver.command("REBUILD");
        m_driver.waitFor("the same rows", [&] { return m_driver.property("structure", "count").toInt() == count; });
        QVERIFY(!m_driver.ask([&] { return m_frame.selection().current().isNull(); }));
        QVERIFY(m_driver.property("structure", "currentRow").toInt() > 0);
    }

private:
    OdDbText* text(const OdString& string)
    {
        return m_driver.ask([&]() -> OdDbText* {
            for (const OdDbObjectId& id : m_frame.documents().current()->database()->modelSpace()->entities())
                if (auto* found = id.open<OdDbText>(); found && found->textString == string)
                    return found;
            return nullptr;
        });
    }

    void select(const OdDbEntity& entity)
    {
        m_driver.ask([&] { m_frame.selection().set(entity.objectId()); });
    }

    void startTyping(const QString& typed)
    {
        m_driver.clickItem("property:Text");
        m_driver.waitFor("the keyboard in the field", [&] { return m_driver.itemHasFocus("property:Text"); });
        m_driver.replaceText(typed);
        m_driver.waitFor("the typed text", [&] { return m_driver.property("editor", "text") == typed; });
    }
};

WORKBENCH_TEST_MAIN(PanelsTest)
#include "tst_panels.moc"
