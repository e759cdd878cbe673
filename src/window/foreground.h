#pragma once

namespace morvane {

/// Lets a program that is called by this one bring its window to the front, where the system asks for that.
void letOthersComeToFront();

} // namespace morvane
