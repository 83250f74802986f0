#pragma once

#include "app/mainframe.h"
#include "app/workbenchapp.h"
#include "command/commandline.h"
#include "drawing/drawingcanvas.h"
#include "host/pagegroup.h"
#include "host/pagepanel.h"
#include "host/pageview.h"
#include "tour/driver.h"
#include "velm/bridge/conversions.h"

#include <QFileInfo>
#include <QProcess>
#include <QQuickItem>
#include <QTemporaryDir>
#include <QtTest>

#include <wx/textctrl.h>

/// Opens a drawing as it is in its file, and no other. For use inside ask() only.
inline void openAlone(workbench::MainFrame& frame, const QString& file)
{
    frame.documents().closeAll();
    frame.openDrawing(velm::wxFromQt(file));
}

/// A drawing with the layers "0", "Alpha" and "Beta" and a line on each of the latter, from (0, 0) to (10, 5) and from
/// (0, 5) to (10, 0).
inline QByteArray smallDrawing()
{
    return "0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nLAYER\n70\n3\n"
           "0\nLAYER\n2\n0\n70\n0\n62\n7\n6\nCONTINUOUS\n"
           "0\nLAYER\n2\nAlpha\n70\n0\n62\n1\n6\nCONTINUOUS\n"
           "0\nLAYER\n2\nBeta\n70\n0\n62\n3\n6\nCONTINUOUS\n"
           "0\nENDTAB\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n"
           "0\nLINE\n8\nAlpha\n10\n0\n20\n0\n30\n0\n11\n10\n21\n5\n31\n0\n"
           "0\nLINE\n8\nBeta\n10\n0\n20\n5\n30\n0\n11\n10\n21\n0\n31\n0\n"
           "0\nENDSEC\n0\nEOF\n";
}

/// A test of the running program, with its window and a folder of the test's own.
class WorkbenchTest : public QObject
{
public:
    explicit WorkbenchTest(workbench::Driver& driver) : m_driver(driver), m_frame(*driver.app().frame()) {}

protected:
    /// Gives the name of a file in the test's folder that holds the text.
    QString write(const QString& name, const QByteArray& text) const
    {
        QFile file(m_folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("a scratch file can't be written");
        return file.fileName();
    }
    void openSmallDrawing()
    {
        const QString file = write("small.dxf", smallDrawing());
        m_driver.ask([&] { openAlone(m_frame, file); });
        m_driver.waitFor("the drawing", [&] { return m_frame.canvas().drawnEntityCount() == 2; });
    }
    /// Where a point of the drawing is on the screen.
    QPoint placeOf(double x, double y)
    {
        const QPoint origin = m_driver.rectOf(m_frame.canvas()).topLeft();
        return m_driver.ask([&] {
            const wxPoint2DDouble point = m_frame.canvas().view().toScreen(x, y);
            return origin + QPointF(point.m_x, point.m_y).toPoint();
        });
    }
    void clickCommandLine()
    {
        m_driver.click(*m_frame.commandLine().input());
        waitForKeyboardInCommandLine();
    }
    void waitForKeyboardInCommandLine()
    {
        m_driver.waitFor("the keyboard in the command line", [&] {
            return m_frame.IsActive() && m_frame.commandLine().input()->HasFocus() && !QGuiApplication::focusWindow();
        });
    }

    workbench::Driver& m_driver;
    workbench::MainFrame& m_frame;
    QTemporaryDir m_folder;
};

/// Runs the tests of a class against the running program: they work it from a thread of their own, by a real mouse and
/// keyboard, while it serves its events. The class is made from the driver.
template <typename Test>
int runInWorkbench(int argc, char** argv)
{
    return workbench::run(1, argv, [argc, argv](workbench::WorkbenchApp& app) {
        workbench::Driver driver(app);
        try {
            driver.waitForStart();
            Test test(driver);
            return QTest::qExec(&test, argc, argv);
        } catch (const workbench::DriverError& error) {
            // Qt Test has counted the failure, but nothing of what was waited for.
            const QString picture = QFileInfo(argv[0]).fileName() + ".failure.png";
            driver.savePicture(picture);
            qCritical("%s\nThe screen then: %s", error.what(), qPrintable(QFileInfo(picture).absoluteFilePath()));
            return 1;
        }
    });
}

#define WORKBENCH_TEST_MAIN(Test)                                                                                      \
    int main(int argc, char** argv)                                                                                    \
    {                                                                                                                  \
        return runInWorkbench<Test>(argc, argv);                                                                       \
    }

/// Runs each test in a program of its own, in this order, so that one finds what the one before left in its files. The
/// settings and the user's data are those of a first start.
template <typename Test>
int runEachInAProgram(int argc, char** argv, std::initializer_list<const char*> tests)
{
    if (argc > 1)
        return runInWorkbench<Test>(argc, argv);
    const QTemporaryDir files;
    qputenv("TANDOLIN_CONFIG", QFile::encodeName(files.filePath("settings.ini")));
    qputenv("XDG_DATA_HOME", QFile::encodeName(files.filePath("data")));
    for (const char* test : tests) {
        QProcess program;
        program.setProcessChannelMode(QProcess::ForwardedChannels);
        program.start(QString::fromLocal8Bit(argv[0]), {QString::fromLatin1(test)});
        if (!program.waitForFinished(-1) || program.exitStatus() != QProcess::NormalExit || program.exitCode() != 0)
            return 1;
        // The short second run ends with memory of the graphics driver, which is unloaded by then: no suppression fits.
        qputenv("ASAN_OPTIONS", "detect_leaks=0");
    }
    return 0;
}
