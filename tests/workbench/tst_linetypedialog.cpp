#include "workbenchtest.h"

#include "od/oddbdatabase.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/dialogs/idialogfactory.h"
#include "velm/drawingprops/linetypemodel.h"

using namespace workbench;

/// The dialog that loads linetypes, worked in the running program.
class LineTypeDialogTest : public QObject
{
    Q_OBJECT
public:
    explicit LineTypeDialogTest(Driver& driver) : m_driver(driver), m_frame(*driver.app().frame()) {}

private Q_SLOTS:
    void init();
    void cleanup();
    void aComboShowsWhatItsDialogLoads_data();
    void aComboShowsWhatItsDialogLoads();
    void aCommandLoadsAndAnotherScales();
    void withoutADrawingThereIsNoDialog();

private:
    QString log()
    {
        return m_driver.ask([&] { return velm::toQt(m_frame.commandLine().logText()); });
    }
    void waitForDialog();

    Driver& m_driver;
    MainFrame& m_frame;
    QTemporaryDir m_folder;
};

void LineTypeDialogTest::init()
{
    QFile file(m_folder.filePath("small.dxf"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(smallDrawing());
    file.close();
    m_driver.ask([&] { openAlone(m_frame, file.fileName()); });
    m_driver.waitFor("the drawing", [&] { return m_frame.canvas().drawnEntityCount() == 2; });
}

void LineTypeDialogTest::cleanup()
{
    m_driver.ask([&] { m_frame.documents().close(); });
}

void LineTypeDialogTest::waitForDialog()
{
    m_driver.waitForDialog("Load Linetypes");
    m_driver.waitFor("the keyboard in the list", [&] { return m_driver.itemHasFocus("lineTypes"); });
}

void LineTypeDialogTest::aComboShowsWhatItsDialogLoads_data()
{
    QTest::addColumn<QString>("also");
    QTest::addColumn<QString>("end");
    QTest::addColumn<QString>("current");
    QTest::addColumn<QString>("names");
    QTest::newRow("one") << ""
                         << "accept"
                         << "CUT"
                         << "ByLayer ByBlock Continuous CUT Load...";
    QTest::newRow("several") << "EDGE"
                             << "accept"
                             << "Continuous"
                             << "ByLayer ByBlock Continuous CUT EDGE Load...";
    QTest::newRow("none") << "EDGE"
                          << "reject"
                          << "Continuous"
                          << "ByLayer ByBlock Continuous Load...";
}

void LineTypeDialogTest::aComboShowsWhatItsDialogLoads()
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

void LineTypeDialogTest::aCommandLoadsAndAnotherScales()
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

void LineTypeDialogTest::withoutADrawingThereIsNoDialog()
{
    cleanup();
    m_driver.command("LINETYPE");
    m_driver.waitFor("the log", [&] { return log().contains("No drawing is open."); });
    OdArray<OdString> loaded;
    QVERIFY(!m_driver.ask([&] { return velm::dlgFactory()->loadLineTypesDialog(nullptr, nullptr, loaded, {}, {}); }));
}

int main(int argc, char** argv)
{
    return runInWorkbench<LineTypeDialogTest>(argc, argv);
}

#include "tst_linetypedialog.moc"
