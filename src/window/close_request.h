#pragma once

#include <QByteArray>
#include <QWidget>

namespace morvane {

/// The window that a native event asks to be closed, as its kind and contents come to a native event filter;
/// 0 for any other event, and where windows are neither those of X nor of Windows.
WId windowToClose(const QByteArray& type, const void* event);

/// The session of the desktop is over, and the program killed as soon as it has taken this event. Windows
/// alone says so.
bool isSessionOver(const QByteArray& type, const void* event);

} // namespace morvane
