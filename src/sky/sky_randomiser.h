#pragma once

#include "sets/slider_values.h"

#include <QString>

namespace morvane {

/// Draws the six colours of a pixel group (1 to 10) that look right for a cloud cover (1 to 5) and a base
/// set. What has no rule is 0: fields, groups, cloud covers and base sets alike. Lets events run.
void randomizeSkyValues(Session& session, int cloudIndex, SliderValues& result, const QString& baseSet,
                        int group);

} // namespace morvane
