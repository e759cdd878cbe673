#pragma once

#include <QObject>
#include <functional>

namespace morvane {

/// Calls `end` from the event loop, once, after the first of the signals that ask a process to end; a second
/// one kills. Windows has none. One owner lives at a time.
void listenToEndSignals(QObject& owner, const std::function<void()>& end);

} // namespace morvane
