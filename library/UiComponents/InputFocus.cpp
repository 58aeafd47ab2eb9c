#include "InputFocus.h"

#ifdef QT_X11EXTRAS_LIB
#include <QX11Info>

#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

namespace {

template <typename Reply>
using ReplyPointer = std::unique_ptr<Reply, decltype(&std::free)>;

/// The window that a window manager announces itself with, or none.
xcb_window_t windowManagersWindow(xcb_connection_t* connection, xcb_window_t root)
{
    constexpr char name[] = "_NET_SUPPORTING_WM_CHECK";
    const auto atomCookie = xcb_intern_atom(connection, 1, sizeof name - 1, name);
    const ReplyPointer<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(connection, atomCookie, nullptr),
                                                     &std::free);
    if (!atom || atom->atom == XCB_ATOM_NONE) {
        return XCB_WINDOW_NONE;
    }
    const auto cookie = xcb_get_property(connection, 0, root, atom->atom, XCB_ATOM_WINDOW, 0, 1);
    const ReplyPointer<xcb_get_property_reply_t> property(xcb_get_property_reply(connection, cookie, nullptr),
                                                          &std::free);
    if (!property || xcb_get_property_value_length(property.get()) != sizeof(xcb_window_t)) {
        return XCB_WINDOW_NONE;
    }
    return *static_cast<const xcb_window_t*>(xcb_get_property_value(property.get()));
}

/// Whether one program has made both: its windows share the bits outside of the mask.
bool areOfOneProgram(xcb_connection_t* connection, xcb_window_t one, xcb_window_t other)
{
    return ((one ^ other) & ~xcb_get_setup(connection)->resource_id_mask) == 0;
}

} // namespace

bool isFocusOfAnotherProgram()
{
    if (!QX11Info::isPlatformX11()) {
        return true;
    }
    xcb_connection_t* const connection = QX11Info::connection();
    const auto root = static_cast<xcb_window_t>(QX11Info::appRootWindow());
    const ReplyPointer<xcb_get_input_focus_reply_t> focus(
        xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr), &std::free);
    if (!focus) {
        return true;
    }
    const bool isNobodys = focus->focus == XCB_INPUT_FOCUS_NONE ||
                           focus->focus == XCB_INPUT_FOCUS_POINTER_ROOT || focus->focus == root;
    // Window managers keep it in a window of their own meanwhile.
    const xcb_window_t manager = windowManagersWindow(connection, root);
    return !isNobodys && !areOfOneProgram(connection, focus->focus, manager) &&
           !areOfOneProgram(connection, focus->focus, xcb_get_setup(connection)->resource_id_base);
}
#else
bool isFocusOfAnotherProgram()
{
    return true;
}
#endif
