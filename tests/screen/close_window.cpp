// close_window ID: asks the window with that number to close, as a window manager does, whatever covers it.

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <xcb/xcb.h>

namespace {

xcb_atom_t atomOf(xcb_connection_t* display, const char* name) {
    const auto cookie = xcb_intern_atom(display, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
    xcb_intern_atom_reply_t* reply = xcb_intern_atom_reply(display, cookie, nullptr);
    const xcb_atom_t atom = reply->atom;
    std::free(reply);
    return atom;
}

} // namespace

int main(int count, char** words) {
    xcb_connection_t* display = xcb_connect(nullptr, nullptr);
    if (count != 2 || xcb_connection_has_error(display)) return 2;
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = static_cast<xcb_window_t>(std::strtoul(words[1], nullptr, 0));
    event.type = atomOf(display, "WM_PROTOCOLS");
    event.data.data32[0] = atomOf(display, "WM_DELETE_WINDOW");
    xcb_send_event(display, 0, event.window, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&event));
    atomOf(display, "WM_PROTOCOLS"); // an answer says that all before it has arrived
    xcb_disconnect(display);
}
