#include "window/end_signals.h"

namespace morvane {

void listenToEndSignals(QObject&, const std::function<void()>&) {}

} // namespace morvane
