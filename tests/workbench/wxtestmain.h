#pragma once

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QtTest>

#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/init.h>
#include <wx/timer.h>

#include <functional>

/// Lets both toolkits work until a condition holds. False when it doesn't within ten seconds.
inline bool waitUntil(const std::function<bool()>& condition)
{
    QElapsedTimer elapsed;
    elapsed.start();
    bool holds = false;
    wxEventLoop loop;
    wxTimer timer;
    timer.Bind(wxEVT_TIMER, [&](wxTimerEvent&) {
        QCoreApplication::processEvents();
        holds = condition();
        if (holds || elapsed.elapsed() > 10000)
            loop.Exit();
        else
            timer.StartOnce(10); // only now: a timer that is always due leaves no time to paint
    });
    timer.StartOnce(1);
    loop.Run();
    return holds;
}

/// The main function of a test of wx windows.
template <typename Test>
int runWxTest(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    wxApp::SetInstance(new wxApp);
    int wxArgc = 1;
    if (!wxEntryStart(wxArgc, argv) || !wxTheApp->CallOnInit())
        return 1;
    int result = 0;
    {
        Test test;
        result = QTest::qExec(&test, argc, argv);
    }
    wxEntryCleanup();
    return result;
}
