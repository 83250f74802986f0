#include "desktop/desktop.h"

#include "support/table.h"

#include <QGuiApplication>
#include <QProcess>
#include <QScreen>
#include <QTest>

namespace {
struct Seen
{
    std::vector<HMONITOR> monitors;
    std::vector<QRect> rects;
    std::size_t most;
};

QRect rectOf(const RECT& rect)
{
    return QRect(rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top);
}

Seen monitors(std::size_t most = 10)
{
    Seen seen{{}, {}, most};
    EnumDisplayMonitors(
        nullptr, nullptr,
        [](HMONITOR monitor, HDC, RECT* rect, LPARAM data) -> BOOL {
            auto& all = *reinterpret_cast<Seen*>(data);
            all.monitors.push_back(monitor);
            all.rects.push_back(rectOf(*rect));
            return all.monitors.size() < all.most;
        },
        reinterpret_cast<LPARAM>(&seen));
    return seen;
}

} // namespace

/// Two monitors of a real X server, of which one counts a pixel as 1.25 of its own and the other as 2.5.
class tst_Monitors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void allAreCounted()
    {
        const Seen all = monitors();
        // In physical pixels, whatever the scales.
        QCOMPARE(all.rects, (std::vector<QRect>{{0, 0, 1280, 900}, {1280, 0, 1280, 900}}));
        QCOMPARE(monitors(1).monitors.size(), std::size_t(1));
        for (std::size_t i = 0; i < 2; ++i) {
            MONITORINFO info{};
            QVERIFY2(!GetMonitorInfoW(all.monitors[i], &info), "the size wasn't set");
            info.cbSize = sizeof info;
            QVERIFY(GetMonitorInfoW(all.monitors[i], &info));
            QCOMPARE(rectOf(info.rcMonitor), all.rects[i]);
            QVERIFY(all.rects[i].contains(rectOf(info.rcWork)));
            QCOMPARE(info.dwFlags, i == 0 ? MONITORINFOF_PRIMARY : 0u);
        }
    }

    void aPointHasItsMonitor_data()
    {
        const auto row = velmtest::columns<int, int, int, int>("x", "y", "flags", "monitor");
        row("the last column of the left one", 1279, 10, 0, 0);
        row("the first column of the right one", 1280, 899, 0, 1);
        row("the last column of the right one", 2559, 0, 0, 1);
        row("below all, which is nowhere", 1300, 900, 0, -1);
        row("below all, nearest", 1300, 900, 2, 1);
        row("below all, primary", 1300, 900, 1, 0);
        row("left of all, nearest", -5000, -5000, 2, 0);
    }
    void aPointHasItsMonitor()
    {
        QFETCH(const int, x);
        QFETCH(const int, y);
        QFETCH(const int, flags);
        QFETCH(const int, monitor);
        const HMONITOR found = MonitorFromPoint({x, y}, static_cast<DWORD>(flags));
        QCOMPARE(found, monitor < 0 ? nullptr : monitors().monitors[static_cast<std::size_t>(monitor)]);
    }

    void aHiddenWindowTellsTheDotsOfItsMonitor()
    {
        const auto dpi = reinterpret_cast<UINT (*)(HWND)>(GetProcAddress(nullptr, "GetDpiForWindow"));
        QVERIFY(dpi);
        const WNDCLASSW windowClass{&DefWindowProcW, nullptr, L"TestWindow"};
        QVERIFY(RegisterClassW(&windowClass) != 0);
        const HWND window = CreateWindowExW(0, L"TestWindow", L"", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT, CW_USEDEFAULT,
                                            CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr, nullptr, nullptr);
        QVERIFY(window);
        for (const auto& [x, expected] : {std::pair(0, 120u), {1280, 240u}, {1279, 120u}}) {
            QVERIFY(SetWindowPos(window, nullptr, x, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE));
            QCOMPARE(dpi(window), expected);
        }
        QCOMPARE(dpi(nullptr), 0u);
    }

    void aMonitorIsUnpluggedAndComesBack()
    {
        const Seen before = monitors();
        QCOMPARE(QProcess::execute("xrandr", {"--delmonitor", "right"}), 0);
        QTRY_COMPARE(QGuiApplication::screens().size(), 1);
        MONITORINFO info{};
        info.cbSize = sizeof info;
        QVERIFY(!GetMonitorInfoW(before.monitors[1], &info));
        QCOMPARE(MonitorFromPoint({2000, 10}, MONITOR_DEFAULTTONULL), nullptr);
        QCOMPARE(MonitorFromPoint({2000, 10}, MONITOR_DEFAULTTONEAREST), before.monitors[0]);
        QCOMPARE(QProcess::execute("xrandr", {"--setmonitor", "right", "1280/338x900/238+1280+0", "none"}), 0);
        QTRY_COMPARE(monitors().rects, before.rects);
    }
};

int main(int argc, char** argv)
{
    qputenv("QT_SCALE_FACTOR", "1.25");
    qputenv("QT_SCREEN_SCALE_FACTORS", "left=1;right=2");
    QGuiApplication application(argc, argv);
    tst_Monitors test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_monitors.moc"
