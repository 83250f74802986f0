#include "workbenchtest.h"

#include "od/oddbdatabase.h"
#include "support/table.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/dialogs/idialogfactory.h"
#include "velm/drawingprops/linetypemodel.h"

using namespace workbench;

/// The dialog that loads linetypes, worked in the running program.
class LineTypeDialogTest : public WorkbenchTest
{
    Q_OBJECT
public:
    using WorkbenchTest::WorkbenchTest;

private Q_SLOTS:
    void init() { openSmallDrawing(); }

    void cleanup()
    {
        m_driver.ask([&] { m_frame.documents().close(); });
    }

    void aComboShowsWhatItsDialogLoads_data()
    {
        const auto row = velmtest::columns<QString, QString, QString, QString>("also", "end", "current", "names");
        row("one", "", "accept", "CUT", "ByLayer ByBlock Continuous CUT Load...");
        row("several", "EDGE", "accept", "Continuous", "ByLayer ByBlock Continuous CUT EDGE Load...");
        row("none", "EDGE", "reject", "Continuous", "ByLayer ByBlock Continuous Load...");
    }
    void aComboShowsWhatItsDialogLoads()
    {
        QFETCH(QString, also);
        QFETCH(QString, end);
        QFETCH(QString, current);
        QFETCH(QString, names);
        std::unique_ptr<velm::ILineTypeModel> model;
        m_driver.ask([&] {
            velm::LineTypeModelParams params;
            params.database = m_frame.documents().current()->database();
            model = velm::createLineTypeModel(params, *velm::guiController(), *velm::dlgFactory(), {100, 16}, {});
            model->selectLineType(params.database->findLinetype(L"Continuous")->objectId());
        });
        bool isOver = false;
        m_driver.start([&] {
            static_cast<velm::LineTypeModel&>(*model).setCurrentIndexOrLoad(model->rowCount() - 1);
            isOver = true;
        });
        waitForDialog();
        m_driver.clickItem("lineTypes/CUT/line");
        if (!also.isEmpty())
            m_driver.clickItem("lineTypes/" + also + "/name", 1, "ctrl");
        m_driver.clickItem(end);
        m_driver.waitFor("the answer", [&] { return isOver; });
        m_driver.waitForNoDialog();
        QString chosen;
        const QStringList shown = m_driver.ask([&] {
            QStringList result;
            for (int row = 0; row < model->rowCount(); ++row)
                result += model->lineTypeName(row).value_or(QString());
            chosen = model->lineTypeName(model->getCurrentIndex()).value_or(QString());
            model.reset();
            return result;
        });
        QCOMPARE(shown.join(u' '), names);
        QCOMPARE(chosen, current);
    }

    void aCommandLoadsAndAnotherScales()
    {
        m_driver.command("LINETYPE");
        waitForDialog();
        m_driver.clickItem("lineTypes/CUT/name");
        m_driver.key("Return");
        m_driver.waitForNoDialog();
        m_driver.waitFor("the log", [&] { return log().contains("Loaded the linetype CUT"); });
        m_driver.command("LTSCALE 2.5");
        m_driver.waitFor("the log", [&] { return log().contains("Linetype scale: 2.5"); });
        m_driver.command("LTSCALE -1");
        m_driver.waitFor("the log", [&] { return log().contains("A linetype scale is a number above zero."); });
        QCOMPARE(m_driver.ask([&] { return m_frame.documents().current()->database()->getLTSCALE(); }), 2.5);
    }

    void withoutADrawingThereIsNoDialog()
    {
        cleanup();
        m_driver.command("LINETYPE");
        m_driver.waitFor("the log", [&] { return log().contains("No drawing is open."); });
        OdArray<OdString> loaded;
        QVERIFY(
            !m_driver.ask([&] { return velm::dlgFactory()->loadLineTypesDialog(nullptr, nullptr, loaded, {}, {}); }));
    }

private:
    QString log()
    {
        return m_driver.ask([&] { return velm::toQt(m_frame.commandLine().logText()); });
    }

    void waitForDialog()
    {
        m_driver.waitForDialog("Load Linetypes");
        m_driver.waitFor("the keyboard in the list", [&] { return m_driver.itemHasFocus("lineTypes"); });
    }
};

WORKBENCH_TEST_MAIN(LineTypeDialogTest)
#include "tst_linetypedialog.moc"
