#pragma once

#include "core/session.h"

#include <array>

namespace morvane {

/// Six whole slider values, -100 to 100, in the order of a `ColorSettings` text.
using SliderValues = std::array<int, 6>;

/// Draws the slider values that make a cloud cover (1 to 5) visible on the ground: warm and bright under a
/// clear sky, cool and dark under an overcast one. Fields without a range stay 0, and so do all for any other
/// number.
void getRandomGroundValues(Session& session, int cloudNumber, SliderValues& values);

/// Draws into `field` from `low` up to, and not including, `high`; without success the field stays as it is.
void drawOne(Session& session, int low, int high, int& field);

} // namespace morvane
