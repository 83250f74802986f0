#include "velm/screens/threaddpiawareness.h"

#include "desktop/desktop.h"

namespace velm {
IThreadDpiAwarenessOverridePerMonitorV2::~IThreadDpiAwarenessOverridePerMonitorV2() = default;

namespace {
using Context = void*;
using SetContext = Context (*)(Context);
using SetHosting = int (*)(int);

// The values of DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2 and DPI_HOSTING_BEHAVIOR_MIXED.
constexpr std::intptr_t perMonitorAwareV2 = -4;
constexpr int mixedHosting = 1;
constexpr int noHosting = -1;

/// Null where the system has no such call.
template <typename Function>
Function systemCall(const char* name)
{
    return reinterpret_cast<Function>(GetProcAddress(GetModuleHandleW(L"USER32.DLL"), name));
}

SetContext setContext()
{
    static const auto function = systemCall<SetContext>("SetThreadDpiAwarenessContext");
    return function;
}

SetHosting setHosting()
{
    static const auto function = systemCall<SetHosting>("SetThreadDpiHostingBehavior");
    return function;
}

class ThreadDpiAwarenessOverridePerMonitorV2 : public IThreadDpiAwarenessOverridePerMonitorV2
{
public:
    ThreadDpiAwarenessOverridePerMonitorV2()
    {
        if (!setContext())
            return;
        m_context = setContext()(reinterpret_cast<Context>(perMonitorAwareV2));
        if (setHosting())
            m_hosting = setHosting()(mixedHosting);
    }

    ~ThreadDpiAwarenessOverridePerMonitorV2() override
    {
        if (!m_context)
            return;
        setContext()(m_context);
        if (setHosting())
            setHosting()(m_hosting);
    }

private:
    Context m_context = nullptr;
    int m_hosting = noHosting;
};
} // namespace

std::unique_ptr<IThreadDpiAwarenessOverridePerMonitorV2> getPerMonitorV2Setter()
{
    return std::make_unique<ThreadDpiAwarenessOverridePerMonitorV2>();
}
} // namespace velm
