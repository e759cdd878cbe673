#pragma once

#include <array>

namespace morvane {

class Session;

/// Six whole slider values, -100 to 100, in the order of a `ColorSettings` text.
using SliderValues = std::array<int, 6>;

/// Draws into `field` from `low` up to, and not including, `high`; without success the field stays as it is.
void drawOne(Session& session, int low, int high, int& field);

} // namespace morvane
