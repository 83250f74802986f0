#include "workbenchtest.h"

#include "od/oddbdatabase.h"
#include "velm/bridge/externalfunctions.h"

#include <QDir>

using namespace workbench;

/// The page of the drawing's health and the help of the pages, worked in the running program. What the program takes
/// for the desktop's browser writes down what it was to open.
class HealthTest : public QObject
{
    Q_OBJECT
public:
    explicit HealthTest(Driver& driver) : m_driver(driver), m_frame(*driver.app().frame()) {}

    /// Makes the browser in the test's own home; to call before the program starts.
    static void installBrowser();

private Q_SLOTS:
    void init();

    void whatIsFoundIsSelectedAndFixed();
    void helpOpensTheManualInTheBrowser();
    void aPageThatIsNotThereIsTold();

private:
    static QString opened() { return QDir::home().filePath("opened"); }
    void waitForPage(const QString& name);

    Driver& m_driver;
    MainFrame& m_frame;
    QTemporaryDir m_folder;
};

void HealthTest::installBrowser()
{
    const auto write = [](const QString& name, const QByteArray& text) {
        QFile file(QDir::home().filePath(name));
        QDir().mkpath(QFileInfo(file).path());
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("%s can't be written", qPrintable(file.fileName()));
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    };
    // A desktop that knows a program for files is asked for it, and else this tool.
    write("bin/xdg-open",
          "#!/bin/sh\nprintf '%s' \"$1\" >\"$HOME/opened.part\"\nmv \"$HOME/opened.part\" \"$HOME/opened\"\n");
    write(".local/share/applications/testbrowser.desktop",
          "[Desktop Entry]\nType=Application\nName=Test browser\nExec=xdg-open %u\n"
          "MimeType=x-scheme-handler/file;text/html;\n");
    write("config/mimeapps.list", "[Default Applications]\nx-scheme-handler/file=testbrowser.desktop\n"
                                  "text/html=testbrowser.desktop\n");
    qputenv("PATH", QFile::encodeName(QDir::home().filePath("bin")) + ":" + qgetenv("PATH"));
}

void HealthTest::init()
{
    QFile::remove(opened());
    QFile file(m_folder.filePath("flaws.dxf"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    // The line from 3,4 to 3,4 has no length, and nothing is on "Beta".
    file.write("0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nLAYER\n70\n2\n"
               "0\nLAYER\n2\nAlpha\n70\n0\n62\n1\n6\nCONTINUOUS\n"
               "0\nLAYER\n2\nBeta\n70\n0\n62\n3\n6\nCONTINUOUS\n"
               "0\nENDTAB\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n"
               "0\nLINE\n8\nAlpha\n10\n0\n20\n0\n11\n10\n21\n5\n"
               "0\nLINE\n8\nAlpha\n10\n3\n20\n4\n11\n3\n21\n4\n"
               "0\nENDSEC\n0\nEOF\n");
    file.close();
    m_driver.ask([&] {
        openAlone(m_frame, file.fileName());
        m_frame.showPanel("Health");
    });
    m_driver.waitFor("the tasks", [&] { return m_driver.hasItem("task:Empty layers"); });
}

void HealthTest::waitForPage(const QString& name)
{
    m_driver.waitFor("the browser to open " + name, [] { return QFile::exists(opened()); });
    QFile file(opened());
    QVERIFY(file.open(QIODevice::ReadOnly));
    // A desktop may turn the address into a file's name.
    const QUrl address = QUrl::fromUserInput(QString::fromUtf8(file.readAll()));
    QCOMPARE(address.fileName(), name);
    QFile page(address.toLocalFile());
    QVERIFY2(page.open(QIODevice::ReadOnly), qPrintable(page.fileName()));
    QVERIFY(page.readAll().contains("<h1>"));
    QVERIFY(file.remove());
}

void HealthTest::whatIsFoundIsSelectedAndFixed()
{
    const auto count = [this](int task) {
        return m_frame.health().tasks()->data(task, HealthTaskModel::CountRole).toInt();
    };
    m_driver.command("HEALTH");
    m_driver.waitFor("the numbers", [&] { return m_frame.commandLine().logText().Contains("Zero-length lines: 1"); });
    QVERIFY(m_driver.ask([&] { return m_frame.commandLine().logText().Contains("Empty layers: 1"); }));

    m_driver.clickItem("task:Zero-length lines");
    m_driver.clickItem("selectFindings");
    m_driver.waitFor("the line", [&] { return m_frame.selection().entities().size() == 1; });
    m_driver.clickItem("fixFindings");
    m_driver.waitFor("no such line", [&] { return count(1) == 0 && m_frame.selection().entities().empty(); });
    QVERIFY(m_driver.ask([&] { return m_frame.commandLine().logText().Contains("Zero-length lines: 1 fixed"); }));
    m_driver.waitFor("the page to say so", [&] { return m_driver.hasItem("nothingFound"); });
    QCOMPARE(m_driver.property("fixFindings", "enabled").toBool(), false);
    QCOMPARE(m_driver.ask([&] { return m_frame.entities().table()->rowCount(); }), 1);

    m_driver.clickItem("task:Empty layers");
    m_driver.waitFor("the layer", [&] { return m_driver.hasItem("finding:0"); });
    QCOMPARE(m_driver.property("selectFindings", "enabled").toBool(), false);
    m_driver.clickItem("fixFindings");
    m_driver.waitFor("no such layer", [&] { return count(0) == 0; });
    QVERIFY(m_driver.ask([&] {
        const OdDbDatabase* database = m_frame.documents().current()->database();
        return database->findLayer(L"Alpha") && !database->findLayer(L"Beta");
    }));
}

void HealthTest::helpOpensTheManualInTheBrowser()
{
    m_driver.clickItem("panelHelpButton");
    waitForPage("health.html");
    QVERIFY(m_driver.property("panelHelpButton", "address").toString().endsWith("/docs/health.html"));
    m_driver.ask([&] { m_frame.showPanel("Layers"); });
    m_driver.clickItem("help");
    waitForPage("tables.html");
    // And by the keyboard, from wherever it is on a page.
    m_driver.clickItem("healthTasks");
    m_driver.key("F1");
    waitForPage("health.html");
}

void HealthTest::aPageThatIsNotThereIsTold()
{
    m_driver.ask([] { velm::openWebDoc("no such page"); });
    QVERIFY(m_driver.ask(
        [&] { return m_frame.commandLine().logText().Contains("There is no documentation page \"no such page\"."); }));
    QVERIFY(!QFile::exists(opened()));
}

int main(int argc, char** argv)
{
    HealthTest::installBrowser();
    return runInWorkbench<HealthTest>(argc, argv);
}

#include "tst_health.moc"
