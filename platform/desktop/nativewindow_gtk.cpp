#include "desktop/desktop.h"

#include <wx/window.h>

#include <gdk/gdkx.h>
#include <gtk/gtk.h>
#include <X11/Xatom.h>

HWND desktop::nativeWindowOf(const wxWindow& window)
{
    GtkWidget* widget = window.GetHandle();
    GdkWindow* native = widget ? gtk_widget_get_window(widget) : nullptr;
    return native && GDK_IS_X11_WINDOW(native) ? reinterpret_cast<HWND>(GDK_WINDOW_XID(native)) : nullptr;
}

HRESULT DwmGetWindowAttribute(HWND window, DWORD attribute, void* value, DWORD size)
{
    constexpr HRESULT failure = -1;
    GdkDisplay* display = gdk_display_get_default();
    if (!window || attribute != DWMWA_EXTENDED_FRAME_BOUNDS || size != sizeof(RECT) || !display ||
        !GDK_IS_X11_DISPLAY(display))
        return failure;
    // Of a window that has gone the server only says that it has.
    gdk_x11_display_error_trap_push(display);
    Display* server = GDK_DISPLAY_XDISPLAY(display);
    const auto id = reinterpret_cast<Window>(window);
    XWindowAttributes attributes{};
    Window child = 0;
    int x = 0;
    int y = 0;
    bool known = XGetWindowAttributes(server, id, &attributes) != 0 &&
                 XTranslateCoordinates(server, id, attributes.root, 0, 0, &x, &y, &child) != 0;
    // What the window manager put around it: left, right, top, bottom.
    long frame[4] = {};
    Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long rest = 0;
    unsigned char* data = nullptr;
    if (known && XGetWindowProperty(server, id, gdk_x11_get_xatom_by_name_for_display(display, "_NET_FRAME_EXTENTS"), 0,
                                    4, False, XA_CARDINAL, &type, &format, &count, &rest, &data) == Success) {
        if (data && format == 32 && count == 4)
            for (int side = 0; side < 4; ++side)
                frame[side] = reinterpret_cast<const long*>(data)[side];
        if (data)
            XFree(data);
    }
    if (gdk_x11_display_error_trap_pop(display) != 0 || !known)
        return failure;
    *static_cast<RECT*>(value) = {static_cast<LONG>(x - frame[0]), static_cast<LONG>(y - frame[2]),
                                  static_cast<LONG>(x + attributes.width + frame[1]),
                                  static_cast<LONG>(y + attributes.height + frame[3])};
    return 0;
}
