#pragma once

#include "sets/slider_values.h"

namespace morvane {

/// Draws the slider values that make a cloud cover (1 to 5) visible on the ground: warm and bright under a
/// clear sky, cool and dark under an overcast one. Fields without a range stay 0, and so do all for any other
/// number.
void getRandomGroundValues(Session& session, int cloudNumber, SliderValues& values);

} // namespace morvane
