#include "host/nativewindow.h"

#include <wx/window.h>

#include <gdk/gdkx.h>
#include <gtk/gtk.h>

#include <utility>

namespace workbench::native {
namespace {
GtkWidget* toplevelOf(const wxWindow& window)
{
    GtkWidget* widget = window.GetHandle();
    GtkWidget* top = widget ? gtk_widget_get_toplevel(widget) : nullptr;
    return top && gtk_widget_is_toplevel(top) ? top : nullptr;
}

FocusRoad currentFocusRoad()
{
    GdkEvent* event = gtk_get_current_event();
    FocusRoad road = FocusRoad::Other;
    guint key = 0;
    if (event && gdk_event_get_event_type(event) == GDK_KEY_PRESS && gdk_event_get_keyval(event, &key)) {
        GdkModifierType state{};
        gdk_event_get_state(event, &state);
        if (key == GDK_KEY_ISO_Left_Tab || (key == GDK_KEY_Tab && (state & GDK_SHIFT_MASK)))
            road = FocusRoad::TabBackward;
        else if (key == GDK_KEY_Tab)
            road = FocusRoad::TabForward;
    }
    if (event)
        gdk_event_free(event);
    return road;
}
} // namespace

struct WindowWatcher::Pimpl
{
    WindowHooks hooks;
    GtkWidget* widget = nullptr;         // not owned; null once it is destroyed
    GdkWindow* filteredWindow = nullptr; // not owned; null once it is gone

    void realized()
    {
        filteredWindow = gtk_widget_get_window(widget);
        const auto id = GDK_WINDOW_XID(filteredWindow);
        gdk_window_set_events(filteredWindow,
                              static_cast<GdkEventMask>(gdk_window_get_events(filteredWindow) | GDK_STRUCTURE_MASK));
        gdk_window_add_filter(filteredWindow, onNativeEvent, this);
        hooks.created(id);
        if (gtk_widget_get_mapped(widget))
            hooks.mapped(true);
    }
    void goes()
    {
        if (!filteredWindow)
            return;
        gdk_window_remove_filter(filteredWindow, onNativeEvent, this);
        filteredWindow = nullptr;
        hooks.goes();
    }

    static GdkFilterReturn onNativeEvent(GdkXEvent* event, GdkEvent*, gpointer self)
    {
        const auto* native = static_cast<const XEvent*>(event);
        auto* pimpl = static_cast<Pimpl*>(self);
        if (native->type == DestroyNotify && pimpl->filteredWindow &&
            native->xdestroywindow.window == GDK_WINDOW_XID(pimpl->filteredWindow))
            pimpl->goes();
        return GDK_FILTER_CONTINUE;
    }
    static void onRealize(GtkWidget*, Pimpl* self) { self->realized(); }
    static void onUnrealize(GtkWidget*, Pimpl* self) { self->goes(); }
    static void onMap(GtkWidget*, Pimpl* self) { self->hooks.mapped(true); }
    static void onUnmap(GtkWidget*, Pimpl* self) { self->hooks.mapped(false); }
    static void onDestroy(GtkWidget*, Pimpl* self) { self->widget = nullptr; }
    static void onEventAfter(GtkWidget*, GdkEvent* event, Pimpl* self)
    {
        if (event->type == GDK_FOCUS_CHANGE && event->focus_change.in)
            self->hooks.focused(currentFocusRoad());
    }
};

WindowWatcher::WindowWatcher(wxWindow& window, WindowHooks hooks) : m_pimpl(std::make_unique<Pimpl>())
{
    m_pimpl->hooks = std::move(hooks);
    m_pimpl->widget = window.GetHandle();
    const auto connect = [this](const char* signal, GCallback callback, GConnectFlags flags = {}) {
        g_signal_connect_data(m_pimpl->widget, signal, callback, m_pimpl.get(), nullptr, flags);
    };
    connect("realize", G_CALLBACK(Pimpl::onRealize), G_CONNECT_AFTER);
    connect("unrealize", G_CALLBACK(Pimpl::onUnrealize));
    connect("map", G_CALLBACK(Pimpl::onMap), G_CONNECT_AFTER);
    connect("unmap", G_CALLBACK(Pimpl::onUnmap));
    connect("destroy", G_CALLBACK(Pimpl::onDestroy));
    // The host's toolkit ends the emission of the focus event itself.
    connect("event-after", G_CALLBACK(Pimpl::onEventAfter));
    if (gtk_widget_get_realized(m_pimpl->widget))
        m_pimpl->realized();
}

WindowWatcher::~WindowWatcher()
{
    if (m_pimpl->filteredWindow)
        gdk_window_remove_filter(m_pimpl->filteredWindow, Pimpl::onNativeEvent, m_pimpl.get());
    if (m_pimpl->widget)
        g_signal_handlers_disconnect_by_data(m_pimpl->widget, m_pimpl.get());
}

struct FocusWidgetWatcher::Pimpl
{
    GtkWidget* widget = nullptr; // not owned; null once it is destroyed
    GtkWidget* top = nullptr;    // not owned; null once it is destroyed
    std::function<void(bool)> changed;

    static void onSetFocus(GtkWindow*, GtkWidget* focus, Pimpl* self)
    {
        if (focus)
            self->changed(focus == self->widget);
    }
    static void onDestroy(GtkWidget*, Pimpl* self) { self->top = nullptr; }
};

FocusWidgetWatcher::FocusWidgetWatcher(wxWindow& window, std::function<void(bool)> changed)
    : m_pimpl(std::make_unique<Pimpl>())
{
    m_pimpl->widget = window.GetHandle();
    m_pimpl->top = toplevelOf(window);
    m_pimpl->changed = std::move(changed);
    if (!m_pimpl->top)
        return;
    g_signal_connect_after(m_pimpl->top, "set-focus", G_CALLBACK(Pimpl::onSetFocus), m_pimpl.get());
    g_signal_connect(m_pimpl->top, "destroy", G_CALLBACK(Pimpl::onDestroy), m_pimpl.get());
}

FocusWidgetWatcher::~FocusWidgetWatcher()
{
    if (m_pimpl->top)
        g_signal_handlers_disconnect_by_data(m_pimpl->top, m_pimpl.get());
}

namespace {
guint pressSignal()
{
    return g_signal_lookup("button-press-event", GTK_TYPE_WIDGET);
}

gboolean onPress(GSignalInvocationHint*, guint, const GValue*, gpointer pressed)
{
    (*static_cast<const std::function<void()>*>(pressed))();
    return TRUE;
}
} // namespace

PressWatcher::PressWatcher(std::function<void()> pressed)
    : m_pressed(std::move(pressed)), m_hook(g_signal_add_emission_hook(pressSignal(), 0, onPress, &m_pressed, nullptr))
{}

PressWatcher::~PressWatcher()
{
    g_signal_remove_emission_hook(pressSignal(), m_hook);
}

std::uintptr_t toplevelWindow(const wxWindow& window)
{
    GtkWidget* top = toplevelOf(window);
    GdkWindow* native = top ? gtk_widget_get_window(top) : nullptr;
    return native ? GDK_WINDOW_XID(native) : 0;
}

void makeFocusWidget(wxWindow& window)
{
    if (GtkWidget* top = toplevelOf(window))
        gtk_window_set_focus(GTK_WINDOW(top), window.GetHandle());
}

bool isFocusWidget(const wxWindow& window)
{
    GtkWidget* top = toplevelOf(window);
    return top && gtk_window_get_focus(GTK_WINDOW(top)) == window.GetHandle();
}

void takeKeyboard(wxWindow& window)
{
    GtkWidget* top = toplevelOf(window);
    GdkWindow* native = top ? gtk_widget_get_window(top) : nullptr;
    if (!native)
        return;
    // The toolkit keeps the keyboard on a hidden child of its window, which it gives the focus when the window manager
    // asks it to. Asking in the manager's name reaches that child with and without a manager.
    Display* display = GDK_WINDOW_XDISPLAY(native);
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = GDK_WINDOW_XID(native);
    event.xclient.message_type = gdk_x11_get_xatom_by_name("WM_PROTOCOLS");
    event.xclient.format = 32;
    event.xclient.data.l[0] = static_cast<long>(gdk_x11_get_xatom_by_name("WM_TAKE_FOCUS"));
    event.xclient.data.l[1] = static_cast<long>(gdk_x11_get_server_time(native));
    XSendEvent(display, event.xclient.window, False, NoEventMask, &event);
    XFlush(display);
}

void giveKeyboard(wxWindow& window, std::uintptr_t child)
{
    GdkWindow* native = gtk_widget_get_window(window.GetHandle());
    if (!native)
        return;
    // The other toolkit would ask with the time of the last event that it saw, which the server takes for an old wish.
    GdkDisplay* display = gdk_window_get_display(native);
    gdk_x11_display_error_trap_push(display);
    XSetInputFocus(GDK_DISPLAY_XDISPLAY(display), child, RevertToParent, CurrentTime);
    // The child may have been unmapped meanwhile.
    gdk_x11_display_error_trap_pop_ignored(display);
}

bool hasKeyboard(wxWindow& window, std::uintptr_t child)
{
    GdkWindow* native = gtk_widget_get_window(window.GetHandle());
    if (!native)
        return false;
    Window focused = 0;
    int revertTo = 0;
    XGetInputFocus(GDK_DISPLAY_XDISPLAY(gdk_window_get_display(native)), &focused, &revertTo);
    return focused == child;
}

void moveFocus(wxWindow& window, bool forward)
{
    if (GtkWidget* top = toplevelOf(window)) {
        gboolean moved = FALSE;
        g_signal_emit_by_name(top, "focus", forward ? GTK_DIR_TAB_FORWARD : GTK_DIR_TAB_BACKWARD, &moved);
    }
}

void setStyleSheet(const char* css, bool dark)
{
    static GtkCssProvider* provider = nullptr; // owned by the screen
    if (!provider) {
        provider = gtk_css_provider_new();
        gtk_style_context_add_provider_for_screen(gdk_screen_get_default(), GTK_STYLE_PROVIDER(provider),
                                                  GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
    }
    g_object_set(gtk_settings_get_default(), "gtk-application-prefer-dark-theme", static_cast<gboolean>(dark), nullptr);
    gtk_css_provider_load_from_data(provider, css, -1, nullptr);
}
} // namespace workbench::native
