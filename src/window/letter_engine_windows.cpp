#include "window/letter_engine.h"

#include <QtGlobal>

namespace morvane {

/// The system's own engine gives letters widths of whole pixels, and cuts words.
void chooseLetterEngine() {
    constexpr char platform[] = "QT_QPA_PLATFORM";
    if (!qEnvironmentVariableIsSet(platform)) qputenv(platform, "windows:fontengine=freetype");
}

} // namespace morvane
