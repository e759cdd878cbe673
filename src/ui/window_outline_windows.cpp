#include "ui/window_outline.h"

#include <QGuiApplication>
#include <QWidget>
#include <windows.h>

namespace morvane {

bool hasPixelOutlines() {
    return QGuiApplication::platformName() == u"windows";
}

void cutToPixels(QWidget& window, const QRegion& outline) {
    window.clearMask();
    SetWindowRgn(reinterpret_cast<HWND>(window.winId()), outline.toHRGN(), TRUE);
}

} // namespace morvane
