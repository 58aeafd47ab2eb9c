#include "InputFocus.h"

#ifdef QT_X11EXTRAS_LIB
#include <QX11Info>

#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>
#endif

bool isFocusOfAnotherProgram()
{
#ifdef QT_X11EXTRAS_LIB
    if (QX11Info::isPlatformX11()) {
        xcb_connection_t* const connection = QX11Info::connection();
        const auto root = static_cast<xcb_window_t>(QX11Info::appRootWindow());
        constexpr char name[] = "_NET_ACTIVE_WINDOW";
        const auto nameCookie = xcb_intern_atom(connection, 0, sizeof name - 1, name);
        const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> atom(
            xcb_intern_atom_reply(connection, nameCookie, nullptr), &std::free);
        if (!atom) {
            return true;
        }
        const auto cookie = xcb_get_property(connection, 0, root, atom->atom, XCB_ATOM_WINDOW, 0, 1);
        const std::unique_ptr<xcb_get_property_reply_t, decltype(&std::free)> property(
            xcb_get_property_reply(connection, cookie, nullptr), &std::free);
        if (property && xcb_get_property_value_length(property.get()) == sizeof(xcb_window_t)) {
            const auto active = *static_cast<const xcb_window_t*>(xcb_get_property_value(property.get()));
            // The windows of one program share the bits outside of the mask.
            const xcb_setup_t* const setup = xcb_get_setup(connection);
            const bool isOwn = ((active ^ setup->resource_id_base) & ~setup->resource_id_mask) == 0;
            return active != XCB_WINDOW_NONE && !isOwn;
        }
    }
#endif
    return true;
}
