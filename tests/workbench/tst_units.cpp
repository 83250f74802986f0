#include "workbenchtest.h"

#include "od/oddbdatabase.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/dialogs/idialogfactory.h"

using namespace workbench;

/// Fields for lengths and angles, the dialog of the drawing's units and the calculator, worked in the running program.
class UnitsTest : public WorkbenchTest
{
    Q_OBJECT
public:
    using WorkbenchTest::WorkbenchTest;

private Q_SLOTS:
    void withoutADrawingNumbersArePlain()
    {
        m_driver.ask([&] { m_frame.showPanel("Units"); });
        QCOMPARE(text("length"), QString("41.2813"));
        m_driver.command("UNITS");
        m_driver.waitFor("the log", [&] { return m_frame.commandLine().logText().Contains("No drawing is open."); });
    }

    void otherUnitsAreFeltEverywhere()
    {
        openSmallDrawing();
        QString cursor;
        m_driver.click(m_frame.canvas());
        m_driver.waitFor("the cursor's place", [&] {
            cursor = velm::toQt(m_frame.GetStatusBar()->GetStatusText(0));
            return !cursor.isEmpty();
        });
        const auto entityLength = [&] {
            return m_driver.ask([&] {
                const auto* table = m_frame.entities().table();
                return table->index(0, table->mapSourceColumnToProxy(EntityTableModel::LengthColumn)).data().toString();
            });
        };
        QCOMPARE(entityLength(), QString("11.1803"));

        openUnitsDialog();
        // The kind alone changes, from decimal to architectural.
        m_driver.key("Down");
        m_driver.key("Down");
        m_driver.waitFor("the sample", [&] { return text("linearSample").contains('\''); });
        m_driver.key("Return");
        m_driver.waitForNoDialog();
        m_driver.waitFor("feet in the field", [&] { return text("length") == "3'-5 5/16\""; });
        QCOMPARE(text("lengthHighest"), QString("83'-4\""));
        QCOMPARE(entityLength(), QString("11 3/16\""));
        QVERIFY(m_driver.ask([&] { return velm::toQt(m_frame.GetStatusBar()->GetStatusText(0)); }) != cursor);
        // The value has kept its digits.
        QCOMPARE(m_driver.ask([&] { return m_frame.units().length()->getValue(); }), 41.28125);
    }

    void aCancelledUnitsDialogChangesNothing()
    {
        const OdUnits before =
            m_driver.ask([&] { return m_frame.documents().current()->database()->formatter().units(); });
        const QString length = text("length");
        openUnitsDialog();
        m_driver.key("Home");
        m_driver.waitFor("the sample", [&] { return text("linearSample").contains('E'); });
        m_driver.key("Escape");
        m_driver.waitForNoDialog();
        QVERIFY(m_driver.ask([&] { return m_frame.documents().current()->database()->formatter().units(); }) == before);
        QCOMPARE(text("length"), length);
    }

    void theCalculatorGivesItsResultToTheField()
    {
        m_driver.clickItem("calculator");
        m_driver.waitForDialog("Calculator");
        m_driver.waitFor("the keyboard in the expression", [&] { return m_driver.itemHasFocus("expression"); });
        QCOMPARE(text("expression"), QString("41.28125"));
        m_driver.replaceText("sqrt(-1)");
        m_driver.waitFor("the problem", [&] { return m_driver.hasItem("problem"); });
        m_driver.key("Return");
        QCOMPARE(m_driver.property("accept", "enabled"), QVariant(false));
        m_driver.replaceText("12 * 3.5");
        m_driver.waitFor("the result", [&] { return m_driver.hasItem("result") && text("result") == "= 42"; });
        m_driver.key("Return");
        m_driver.waitForNoDialog();
        m_driver.waitFor("the result in the field", [&] { return text("length") == "3'-6\""; });
        QCOMPARE(m_driver.ask([&] { return m_frame.units().length()->getValue(); }), 42.0);
    }

    void theCalculatorLeavesTheVariantAloneWhenItIsCancelled()
    {
        for (const char* key : {"Escape", "Return"}) {
            OdDbEvalVariantPtr variant = OdDbEvalVariant::init(2.5);
            const OdDbEvalVariantPtr given = variant;
            bool answer = false;
            bool isOver = false;
            m_driver.start([&] {
                answer = velm::dlgFactory()->quickCalculator(nullptr, variant, true);
                isOver = true;
            });
            m_driver.waitForDialog("Calculator");
            m_driver.waitFor("the keyboard in the expression", [&] { return m_driver.itemHasFocus("expression"); });
            m_driver.replaceText("ans*2");
            m_driver.waitFor("the result", [&] { return m_driver.hasItem("result") && text("result") == "= 5"; });
            m_driver.key(key);
            m_driver.waitFor("the answer", [&] { return isOver; });
            m_driver.waitForNoDialog();
            QCOMPARE(answer, *key == 'R');
            QCOMPARE(variant == given, *key == 'E');
            QCOMPARE(variant->getAsDouble(), *key == 'R' ? 5.0 : 2.5);
        }
    }

private:
    QString text(const char* item) { return m_driver.property(QLatin1String(item), "text").toString(); }

    void openUnitsDialog()
    {
        m_driver.command("UNITS");
        m_driver.waitForDialog("Drawing Units");
        m_driver.waitFor("the keyboard in the list", [&] { return m_driver.itemHasFocus("linearKind"); });
    }
};

WORKBENCH_TEST_MAIN(UnitsTest)
#include "tst_units.moc"
