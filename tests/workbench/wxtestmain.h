#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QtTest>

#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/init.h>
#include <wx/log.h>

#include <functional>

/// Lets both toolkits work until a condition holds. False when it doesn't within ten seconds.
inline bool waitUntil(const std::function<bool()>& condition)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.elapsed() > 10000)
            return false;
        wxTheApp->Yield(true);
        wxTheApp->ProcessPendingEvents();
        wxTheApp->ProcessIdle();
    }
    return true;
}

/// The main function of a test of wx windows.
template <typename Test>
int runWxTest(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    wxApp::SetInstance(new wxApp);
    int wxArgc = 1;
    if (!wxEntryStart(wxArgc, argv) || !wxTheApp->CallOnInit())
        return 1;
    int result = 0;
    {
        wxEventLoop loop;
        wxEventLoopActivator activator(&loop);
        Test test;
        result = QTest::qExec(&test, argc, argv);
    }
    wxEntryCleanup();
    return result;
}
