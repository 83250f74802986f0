#pragma once

#include "velm/screens/imonitorapi.h"
#include "velm/screens/isystemwindow.h"

#include <QStringList>

/// A window that can be made and moved as its flags say. It writes to its owner's log.
struct FakeWindow : velm::ISystemWindow
{
    explicit FakeWindow(QStringList& log) : m_log(log) {}
    HWND create() override
    {
        m_log += "create";
        return canBeMade ? handle() : nullptr;
    }
    bool moveTo(const RECT& rect) override
    {
        m_log += QString("move %1,%2").arg(rect.left).arg(rect.top);
        return canMove;
    }
    HWND handle() const override { return reinterpret_cast<HWND>(8); }

    bool canBeMade = true;
    bool canMove = true;

private:
    QStringList& m_log;
};

/// A system with one monitor at -300,40, which writes down what it is asked.
struct FakeMonitors : velm::IMonitorAPI
{
    HMONITOR monitorFromPoint(const QPointF& point, int) override
    {
        log += QString("monitor at %1,%2").arg(point.x()).arg(point.y());
        return reinterpret_cast<HMONITOR>(4);
    }
    bool getMonitorInfo(HMONITOR monitor, MONITORINFO* info) override
    {
        log += QString("info %1").arg(reinterpret_cast<std::uintptr_t>(monitor));
        info->rcMonitor = {-300, 40, 700, 840};
        info->rcWork = {-1, -2, -3, -4};
        return known;
    }
    bool getMonitorRect(const QPointF&, RECT*) override { return false; }
    std::optional<int> getDpiForWindow(velm::ISystemWindow* asked) override
    {
        log += asked == &window ? "dpi" : "dpi of another window";
        return dpi;
    }
    int fromDIP(int value) override
    {
        log += QString("fromDIP %1").arg(value);
        return 1000 + value;
    }
    velm::ISystemWindow* getSystemWindow() override { return hasWindow ? &window : nullptr; }

    QStringList log;
    FakeWindow window{log};
    std::optional<int> dpi;
    bool known = true;
    bool hasWindow = true;
};
