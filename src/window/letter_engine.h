#pragma once

namespace morvane {

/// Before the application is made: that letters are as wide on every system, unless the user chose a
/// platform.
void chooseLetterEngine();

} // namespace morvane
