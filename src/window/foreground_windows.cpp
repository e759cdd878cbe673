#include "window/foreground.h"

#include <windows.h>

namespace morvane {

void letOthersComeToFront() {
    AllowSetForegroundWindow(ASFW_ANY);
}

} // namespace morvane
