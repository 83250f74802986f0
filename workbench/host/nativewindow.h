#pragma once

#include <cstdint>
#include <functional>
#include <memory>

class wxWindow;

namespace workbench::native {
/// The road by which the keyboard focus came to a window.
enum class FocusRoad
{
    Other,
    TabForward,
    TabBackward,
};

/// What a window that holds another toolkit's window must hear of.
struct WindowHooks
{
    std::function<void(std::uintptr_t)> created; ///< the native window exists; its XID
    std::function<void()> goes;                  ///< it is about to go, or has gone already when the server took it
    std::function<void(bool)> mapped;            ///< it came on the screen or left it
    std::function<void(FocusRoad)> focused;      ///< the host's focus came to it
};

/// Watches the native side of one window for its whole life.
class WindowWatcher
{
public:
    WindowWatcher(wxWindow& window, WindowHooks hooks);
    ~WindowWatcher();

private:
    struct Pimpl;
    std::unique_ptr<Pimpl> m_pimpl;
};

/// Hears each change of the widget that has the focus inside one top-level window, also while that window is inactive.
class FocusWidgetWatcher
{
public:
    /// The argument tells whether `window` itself is the widget.
    FocusWidgetWatcher(wxWindow& window, std::function<void(bool)> changed);
    ~FocusWidgetWatcher();

private:
    struct Pimpl;
    std::unique_ptr<Pimpl> m_pimpl;
};

/// Hears each press of a mouse button that reaches a widget of the host's toolkit, of its own controls, too, once for
/// each widget that is asked to handle it.
class PressWatcher
{
public:
    explicit PressWatcher(std::function<void()> pressed);
    ~PressWatcher();

private:
    std::function<void()> m_pressed;
    unsigned long m_hook;
};

/// The native window of the top-level window around `window`; 0 while there is none.
std::uintptr_t toplevelWindow(const wxWindow& window);
/// Makes the window the widget that has its top-level window's focus, without asking the X server for the keyboard.
void makeFocusWidget(wxWindow& window);
bool isFocusWidget(const wxWindow& window);
/// Brings the X keyboard focus back to the top-level window around `window`, to the widget that has its focus. The
/// answer of the server comes later.
void takeKeyboard(wxWindow& window);
/// Gives the X keyboard focus to a native window inside `window`.
void giveKeyboard(wxWindow& window, std::uintptr_t child);
/// Whether a native window inside `window` has the X keyboard focus now, told by the server: the other toolkit hears of
/// it later.
bool hasKeyboard(wxWindow& window, std::uintptr_t child);
/// Moves the focus from `window` to the next or the previous widget of its top-level window.
void moveFocus(wxWindow& window, bool forward);
/// Sets the colours of all of the host's own controls, as style sheet text of the toolkit.
void setStyleSheet(const char* css, bool dark);
} // namespace workbench::native
