#include "window/close_request.h"

#include <windows.h>

namespace morvane {

WId windowToClose(const QByteArray&, const void* event) {
    const auto* sent = static_cast<const MSG*>(event);
    const bool isClose =
        sent->message == WM_CLOSE || (sent->message == WM_SYSCOMMAND && (sent->wParam & 0xFFF0) == SC_CLOSE);
    return isClose ? reinterpret_cast<WId>(sent->hwnd) : 0;
}

bool isSessionOver(const QByteArray&, const void* event) {
    const auto* sent = static_cast<const MSG*>(event);
    return sent->message == WM_ENDSESSION && sent->wParam != FALSE;
}

} // namespace morvane
