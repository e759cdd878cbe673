#include "ui/controls/slider_scale.h"

#include "core/numbers.h"

#include <algorithm>

namespace morvane {

double SliderScale::positionOf(int value) const {
    const double along = travel * (static_cast<double>(value) - min) / range();
    return onRail(orientation == SliderOrientation::horizontal ? along : travel - along);
}

int SliderScale::valueAt(double position) const {
    if (travel <= 0) return min;
    const double along = orientation == SliderOrientation::horizontal ? position : travel - position;
    return roundToLong(along / travel * range() + min);
}

double SliderScale::onRail(double position) const {
    return std::clamp(position, 0.0, std::max(travel, 0.0));
}

} // namespace morvane
