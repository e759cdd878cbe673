#pragma once

namespace morvane {

/// Tells screen readers and other assistive programs what the program's own controls and screens are: role,
/// state, value and what can be done with them. What is Qt's own is told by Qt. Any number of calls are one.
void installAccessibleControls();

} // namespace morvane
