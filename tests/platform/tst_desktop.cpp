#include "desktop/desktop.h"

#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QScreen>
#include <QTest>

#include <memory>

class tst_Desktop : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nativeContextBecomesQts()
    {
        QCOMPARE(desktop::openGlContextFromNative(nullptr, nullptr), nullptr);
#if QT_CONFIG(xcb_glx_plugin)
        QOpenGLContext maker;
        QVERIFY(maker.create());
        QVERIFY2(maker.nativeInterface<QNativeInterface::QGLXContext>(), "the private X server offers GLX");
        const GLXContext native = maker.nativeInterface<QNativeInterface::QGLXContext>()->nativeContext();
        std::unique_ptr<QOpenGLContext> context(
            desktop::openGlContextFromNative(reinterpret_cast<HGLRC>(native), nullptr));
        QVERIFY(context);
        QCOMPARE(context->nativeInterface<QNativeInterface::QGLXContext>()->nativeContext(), native);
        context.reset();
        // The native context stays its maker's.
        QOffscreenSurface surface;
        surface.create();
        QVERIFY(maker.makeCurrent(&surface));
#endif
    }

    void textsCompareWithoutCase()
    {
        QCOMPARE(_wcsicoll(L"MaßÄ", L"maßä"), 0);
        QVERIFY(_wcsicoll(L"a", L"B") < 0 && _wcsicoll(L"B", L"a") > 0);
        QVERIFY(_wcsicoll(L"", L"A") < 0);
    }

    void productsAreRoundedHalfAwayFromZero()
    {
        QCOMPARE(MulDiv(3, 1, 2), 2);
        QCOMPARE(MulDiv(-3, 1, 2), -2);
        QCOMPARE(MulDiv(3, 1, -2), -2);
        QCOMPARE(MulDiv(7, 1, 3), 2);
        QCOMPARE(MulDiv(2147483647, 1000, 2000), 1073741824);
        QCOMPARE(MulDiv(2147483647, 2, 1), -1);
        QCOMPARE(MulDiv(-2147483648, 1, 1), -2147483647 - 1);
        QCOMPARE(MulDiv(1, 1, 0), -1);
    }

    void rectanglesLeaveTheirEndsOut()
    {
        const RECT rect{-2, 3, 4, 5};
        QVERIFY(PtInRect(&rect, {-2, 3}) && PtInRect(&rect, {3, 4}));
        QVERIFY(!PtInRect(&rect, {4, 4}) && !PtInRect(&rect, {3, 5}) && !PtInRect(&rect, {-3, 3}));
        const auto united = [](const RECT& left, const RECT& right) {
            RECT result{9, 9, 9, 9};
            const bool any = UnionRect(&result, &left, &right);
            return QString("%1 %2 %3 %4 %5")
                .arg(any)
                .arg(result.left)
                .arg(result.top)
                .arg(result.right)
                .arg(result.bottom);
        };
        QCOMPARE(united(rect, {0, 0, 1, 9}), QString("1 -2 0 4 9"));
        QCOMPARE(united({7, 7, 7, 9}, rect), QString("1 -2 3 4 5"));
        QCOMPARE(united(rect, {-9, 9, 9, 9}), QString("1 -2 3 4 5"));
        QCOMPARE(united({1, 1, 1, 1}, {5, 5, 4, 9}), QString("0 0 0 0 0"));
    }

    void hiddenWindowsAreOfARegisteredClass()
    {
        const auto create = [](const wchar_t* name) {
            return CreateWindowExW(0, name, L"", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT,
                                   CW_USEDEFAULT, nullptr, nullptr, nullptr, nullptr);
        };
        WNDCLASSW windowClass{};
        windowClass.lpfnWndProc = DefWindowProcW;
        windowClass.lpszClassName = L"Hidden";
        QVERIFY(!create(L"Hidden"));
        QVERIFY(RegisterClassW(&windowClass) != 0);
        QCOMPARE(RegisterClassW(&windowClass), std::uint16_t(0));
        QCOMPARE(GetLastError(), ERROR_CLASS_ALREADY_EXISTS);
        const HWND window = create(L"Hidden");
        QVERIFY(window && create(L"Hidden") != window);
        QVERIFY(SetWindowPos(window, nullptr, 40, -50, 0, 0, SWP_NOSIZE));
        QVERIFY(!SetWindowPos(nullptr, nullptr, 40, -50, 0, 0, SWP_NOSIZE));
        QVERIFY(GetProcAddress(GetModuleHandleW(L"USER32.DLL"), "GetDpiForWindow"));
        QVERIFY(!GetProcAddress(GetModuleHandleW(L"USER32.DLL"), "SetThreadDpiAwarenessContext"));
    }

    void monitorsAreFoundByPoint()
    {
        const QSize size = QGuiApplication::primaryScreen()->size(); // one screen, one to one
        const HMONITOR monitor = MonitorFromPoint({size.width() - 1, size.height() - 1}, MONITOR_DEFAULTTONULL);
        QVERIFY(monitor);
        QVERIFY(!MonitorFromPoint({size.width(), 0}, MONITOR_DEFAULTTONULL));
        QCOMPARE(MonitorFromPoint({-5, -5}, MONITOR_DEFAULTTONEAREST), monitor);
        QCOMPARE(MonitorFromPoint({-5, -5}, MONITOR_DEFAULTTOPRIMARY), monitor);
        MONITORINFO info{};
        QVERIFY(!GetMonitorInfoW(monitor, &info)); // its size isn't set
        info.cbSize = sizeof info;
        QVERIFY(!GetMonitorInfoW(nullptr, &info));
        QVERIFY(GetMonitorInfoW(monitor, &info));
        QCOMPARE(QSize(info.rcMonitor.right, info.rcMonitor.bottom), size);
        QCOMPARE(info.dwFlags, MONITORINFOF_PRIMARY);
        RECT frame{};
        QVERIFY(DwmGetWindowAttribute(nullptr, DWMWA_EXTENDED_FRAME_BOUNDS, &frame, sizeof frame) != 0);
    }
};

QTEST_MAIN(tst_Desktop)
#include "tst_desktop.moc"
