#include "ui/controls/slider_scale.h"

#include "core/numbers.h"

#include <algorithm>

namespace morvane {

double SliderScale::positionOf(int value) const {
    return onRail(travel * (static_cast<double>(value) - min) / range());
}

int SliderScale::valueAt(double position) const {
    if (travel <= 0) return min;
    return roundToLong(position / travel * range() + min);
}

double SliderScale::onRail(double position) const {
    return std::clamp(position, 0.0, std::max(travel, 0.0));
}

} // namespace morvane
