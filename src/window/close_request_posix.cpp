#include "window/close_request.h"

#include <QGuiApplication>
#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace morvane {

namespace {

xcb_atom_t atomOf(const QByteArray& name) {
    auto* display = qApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!display) return XCB_ATOM_NONE;
    const auto length = static_cast<std::uint16_t>(name.size());
    const auto cookie = xcb_intern_atom(display->connection(), 0, length, name.constData());
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
        xcb_intern_atom_reply(display->connection(), cookie, nullptr), &std::free);
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

} // namespace

WId windowToClose(const QByteArray& type, const void* event) {
    if (type != "xcb_generic_event_t") return 0;
    constexpr int sentMark = 0x80;
    static const xcb_atom_t protocols = atomOf("WM_PROTOCOLS"), close = atomOf("WM_DELETE_WINDOW");
    const auto* any = static_cast<const xcb_generic_event_t*>(event);
    if ((any->response_type & ~sentMark) != XCB_CLIENT_MESSAGE) return 0;
    const auto* sent = static_cast<const xcb_client_message_event_t*>(event);
    return sent->type == protocols && sent->data.data32[0] == close ? sent->window : 0;
}

bool isSessionOver(const QByteArray&, const void*) {
    return false;
}

} // namespace morvane
