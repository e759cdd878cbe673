#include "ui/blocked_close.h"

#include "ui/form.h"
#include "ui/shell.h"

#include <QApplication>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <QGuiApplication>
#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#endif

namespace morvane {

namespace {

#ifdef Q_OS_WIN

/// The window that is to be closed; 0 for any other message.
WId closedWindow(const QByteArray&, void* message) {
    const auto* sent = static_cast<const MSG*>(message);
    const bool isClose =
        sent->message == WM_CLOSE || (sent->message == WM_SYSCOMMAND && (sent->wParam & 0xFFF0) == SC_CLOSE);
    return isClose ? reinterpret_cast<WId>(sent->hwnd) : 0;
}

#else

xcb_atom_t atomOf(const QByteArray& name) {
    auto* display = qApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!display) return XCB_ATOM_NONE;
    const auto length = static_cast<std::uint16_t>(name.size());
    const auto cookie = xcb_intern_atom(display->connection(), 0, length, name.constData());
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
        xcb_intern_atom_reply(display->connection(), cookie, nullptr), &std::free);
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

/// The window that is to be closed; 0 for any other event, and where windows are not those of X.
WId closedWindow(const QByteArray& type, void* message) {
    if (type != "xcb_generic_event_t") return 0;
    constexpr int sentMark = 0x80;
    static const xcb_atom_t protocols = atomOf("WM_PROTOCOLS"), close = atomOf("WM_DELETE_WINDOW");
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    if ((event->response_type & ~sentMark) != XCB_CLIENT_MESSAGE) return 0;
    const auto* sent = reinterpret_cast<const xcb_client_message_event_t*>(event);
    return sent->type == protocols && sent->data.data32[0] == close ? sent->window : 0;
}

#endif

bool isBlocked(const QWidget* window) {
    const QWidget* modal = QApplication::activeModalWidget();
    return modal && modal->window() != window;
}

} // namespace

BlockedCloses::BlockedCloses(Shell& shell) : QObject(&shell), shell_(shell) {
    qApp->installNativeEventFilter(this);
}

bool BlockedCloses::nativeEventFilter(const QByteArray& type, void* message, qintptr*) {
    const WId id = closedWindow(type, message);
    QWidget* window = id ? QWidget::find(id) : nullptr;
    if (!window || !isBlocked(window) || !windowNames.contains(window->objectName())) return false;
    // Not from inside the reading of events, as a question may follow.
    QMetaObject::invokeMethod(&shell_, &Shell::exitProgram, Qt::QueuedConnection);
    return true;
}

} // namespace morvane
