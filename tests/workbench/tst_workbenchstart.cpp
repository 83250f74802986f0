#include "workbenchtest.h"

#include "ut/themecolors.h"

using namespace workbench;

/// The start of the program where no settings can be stored.
class WorkbenchStartTest : public WorkbenchTest
{
    Q_OBJECT
public:
    using WorkbenchTest::WorkbenchTest;

private Q_SLOTS:
    void settingsThatCannotBeStoredAreToldOnceAndTheProgramRuns()
    {
        m_driver.waitForDialog("Settings");
        QVERIFY2(m_driver.dialogText().contains("settings.ini"), qPrintable(m_driver.dialogText()));
        m_driver.key("Return");
        m_driver.waitForNoDialog();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("settings\\.ini"));
        m_driver.command("THEME LIGHT");
        wxWindow& canvas = m_driver.app().frame()->canvas();
        m_driver.waitFor("the light theme", [&] {
            return m_driver.picture().pixelColor(m_driver.rectOf(canvas).center()).lightness() > 128;
        });
        QVERIFY(!m_driver.ask([&] { return m_driver.dialog() != nullptr; }));
    }
};

int main(int argc, char** argv)
{
    qputenv("TANDOLIN_CONFIG", "/dev/null/settings.ini");
    return runInWorkbench<WorkbenchStartTest>(argc, argv);
}

#include "tst_workbenchstart.moc"
