#include "workbenchtest.h"

#include <thread>

using namespace workbench;

/// The panel of sheet sets, worked in the running program by mouse and keyboard. The program is started once for all
/// tests, and the settings are those of the one before.
class SheetSetPanelTest : public QObject
{
    Q_OBJECT
public:
    explicit SheetSetPanelTest(Driver& driver) : m_driver(driver), m_frame(*driver.app().frame()) {}

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void foldersThatAreMissingAreNamed();
    void aFolderIsOpenedAndFollowed();
    void aDoubleClickOpensADrawing();
    void aLayoutThatIsDraggedToTheCanvasIsShown();
    void theKeyboardWorksInTheTree();
    void aBigFolderLeavesThePanelUsable();

private:
    QString path(const QString& name) const { return m_folder.filePath(name); }
    void write(const QString& name, const QByteArray& text) const;
    QString opened();
    DrawingView view();
    /// On the screen, of the row with this text.
    QPoint placeOfRow(const QString& text);
    void waitForRow(const QString& text);
    int rowCount() { return m_driver.property("sheets", "count").toInt(); }
    SheetSetController& controller() { return m_frame.sheetSets(); }

    Driver& m_driver;
    MainFrame& m_frame;
    QTemporaryDir m_folder;
};

void SheetSetPanelTest::write(const QString& name, const QByteArray& text) const
{
    QVERIFY(QDir().mkpath(QFileInfo(path(name)).path()));
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
}

QString SheetSetPanelTest::opened()
{
    OdApDocument* document = m_frame.documents().current();
    return document ? QFileInfo(velm::toQt(document->fileName())).fileName() : QString();
}

DrawingView SheetSetPanelTest::view()
{
    return m_driver.ask([&] { return m_frame.canvas().view(); });
}

QPoint SheetSetPanelTest::placeOfRow(const QString& text)
{
    return m_driver.placeOfItem("sheets/" + text);
}

void SheetSetPanelTest::waitForRow(const QString& text)
{
    m_driver.waitFor("the row " + text, [&] { return m_driver.hasItem("sheets/" + text); });
}

void SheetSetPanelTest::initTestCase()
{
    const QByteArray layouts = "0\nSECTION\n2\nOBJECTS\n"
                               "0\nLAYOUT\n100\nAcDbLayout\n1\nModel\n71\n0\n330\nB0\n"
                               "0\nLAYOUT\n100\nAcDbLayout\n1\nDetail\n71\n1\n330\nB1\n"
                               "0\nENDSEC\n0\nEOF\n";
    // The viewport of "Detail" shows 2 by 1 about the point 8, 4.
    const QByteArray viewport = "0\nVIEWPORT\n330\nB1\n69\n2\n40\n20\n41\n10\n12\n8\n22\n4\n45\n1\n0\nENDSEC\n";
    QByteArray plan = smallDrawing();
    plan.chop(int(strlen("0\nENDSEC\n0\nEOF\n")));
    write("set/plan.dxf", plan + viewport + layouts);
    write("set/other.dxf", smallDrawing());
    write("set/inner/deep.dxf", smallDrawing());
    m_driver.ask([&] {
        for (const QString& root : QStringList(controller().roots()))
            controller().removeRoot(root);
    });
}

void SheetSetPanelTest::cleanup()
{
    m_driver.ask([&] { m_frame.documents().closeAll(); });
}

void SheetSetPanelTest::foldersThatAreMissingAreNamed()
{
    const auto vanish = [this](const QString& name) {
        QVERIFY(QDir().mkpath(path(name)));
        m_driver.ask([&] { controller().addRoot(path(name)); });
        QVERIFY(QDir(path(name)).removeRecursively());
        m_driver.waitFor("a missing folder", [&] { return controller().missingRoots().contains(path(name)); });
    };
    // What came and went before the page was ever shown is forgotten.
    vanish("unseen");
    m_driver.ask([&] { controller().removeRoot(path("unseen")); });
    m_driver.ask([&] { m_frame.showPanel("Sheet Sets"); });
    vanish("seen");
    m_driver.waitFor("the note", [&] { return m_driver.hasItem("missing:" + path("seen")); });
    m_driver.clickItem("dismiss");
    m_driver.waitFor("no note", [&] { return !m_driver.hasItem("missing:" + path("seen")); });
    QVERIFY(m_driver.ask([&] { return controller().roots(); }).isEmpty());

    // Many of them leave most of the page to the tree.
    for (int number = 0; number < 20; ++number)
        vanish(QString("lost %1").arg(number));
    m_driver.waitFor("the first note", [&] { return m_driver.hasItem("missing:" + path("lost 0")); });
    QVERIFY(m_driver.property("missing", "contentHeight").toReal() > m_driver.property("sheets", "height").toReal());
    QVERIFY(m_driver.property("missing", "height").toReal() < m_driver.property("sheets", "height").toReal());
    m_driver.ask([&] {
        for (const QString& root : QStringList(controller().roots()))
            controller().removeRoot(root);
    });
}

void SheetSetPanelTest::aFolderIsOpenedAndFollowed()
{
    m_driver.command("SHEETS " + path("set"));
    waitForRow("set");
    // A double click opens a folder, and closes it.
    const QPoint root = placeOfRow("set");
    m_driver.click(root);
    m_driver.click(root);
    waitForRow("plan.dxf (2)");
    QCOMPARE(rowCount(), 4);
    write("set/new.dxf", smallDrawing());
    waitForRow("new.dxf");
    QVERIFY(QFile::remove(path("set/new.dxf")));
    m_driver.waitFor("the row to go", [&] { return rowCount() == 4; });
}

void SheetSetPanelTest::aDoubleClickOpensADrawing()
{
    const QPoint row = placeOfRow("other.dxf");
    m_driver.click(row);
    m_driver.click(row);
    m_driver.waitFor("the drawing", [&] { return opened() == "other.dxf"; });
    QVERIFY(m_driver.ask([&] { return m_frame.canvas().isFitted(); }));
}

void SheetSetPanelTest::aLayoutThatIsDraggedToTheCanvasIsShown()
{
    m_driver.click(placeOfRow("plan.dxf (2)"));
    m_driver.key("Right");
    waitForRow("Detail");
    const QRect canvas = m_driver.rectOf(m_frame.canvas());
    // Beside the canvas nothing happens, and a drawing isn't to be dragged.
    m_driver.drag(placeOfRow("Detail"), placeOfRow("set"));
    m_driver.drag(placeOfRow("plan.dxf (2)"), canvas.center());
    m_driver.ask([] {});
    QCOMPARE(m_driver.ask([&] { return opened(); }), QString());

    m_driver.drag(placeOfRow("Detail"), canvas.center());
    m_driver.waitFor("the drawing", [&] { return opened() == "plan.dxf"; });
    m_driver.waitFor("the detail", [&] { return !m_frame.canvas().isFitted(); });
    QCOMPARE(qRound(view().center.x * 10), 80);
    QCOMPARE(qRound(view().center.y * 10), 40);
    const double scale = view().scale;

    m_driver.drag(placeOfRow("Model"), canvas.center());
    m_driver.waitFor("all of the drawing", [&] { return m_frame.canvas().isFitted(); });
    QVERIFY(view().scale < scale / 2);

    // A double click does the same.
    const QPoint detail = placeOfRow("Detail");
    m_driver.click(detail);
    m_driver.click(detail);
    m_driver.waitFor("the detail", [&] { return qFuzzyCompare(m_frame.canvas().view().scale, scale); });
}

void SheetSetPanelTest::theKeyboardWorksInTheTree()
{
    m_driver.click(placeOfRow("set"));
    m_driver.type("inn");
    m_driver.waitFor("the row that was typed",
                     [&] { return controller().currentIndex().data().toString() == "inner"; });
    m_driver.key("Return");
    waitForRow("deep.dxf");
    m_driver.key("Right");
    m_driver.key("Return");
    m_driver.waitFor("the drawing", [&] { return opened() == "deep.dxf"; });
    // What is inside of a folder isn't to be removed.
    QVERIFY(!m_driver.property("removeFolder", "enabled").toBool());
    m_driver.click(placeOfRow("set"));
    m_driver.clickItem("removeFolder");
    m_driver.waitFor("an empty panel", [&] { return controller().roots().isEmpty(); });
    m_driver.clickItem("goToDrawing");
    waitForRow("deep.dxf");
    QCOMPARE(m_driver.ask([&] { return controller().roots(); }), QStringList(path("set/inner")));
}

void SheetSetPanelTest::aBigFolderLeavesThePanelUsable()
{
    for (int number = 0; number < 3000; ++number)
        write(QString("many/%1.dxf").arg(number), "0\nEOF\n");
    const int before = rowCount();
    m_driver.command("SHEETS " + path("many"));
    waitForRow("many");
    m_driver.click(placeOfRow("many"));
    m_driver.key("Right");
    waitForRow("0.dxf");
    // More of them come until the click is served.
    int written = 3000;
    std::jthread writer([&](const std::stop_token& stop) {
        for (; !stop.stop_requested(); ++written)
            write(QString("many/%1.dxf").arg(written), "0\nEOF\n");
    });
    m_driver.waitFor("more than there were", [&] { return rowCount() > before + 1 + 3000; });
    m_driver.click(placeOfRow("inner"));
    m_driver.waitFor("the click to be served",
                     [&] { return controller().currentIndex().data().toString() == "inner"; });
    const int served = rowCount();
    writer.request_stop();
    writer.join();
    m_driver.waitFor(
        "all rows", [&] { return rowCount() == before + 1 + written; }, 60000);
    QVERIFY(served < rowCount());
    m_driver.ask([&] { controller().removeRoot(path("many")); });
}

int main(int argc, char** argv)
{
    return runInWorkbench<SheetSetPanelTest>(argc, argv);
}
#include "tst_sheetsetpanel.moc"
