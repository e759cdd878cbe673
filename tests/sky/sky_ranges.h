#pragma once

#include "sets/slider_values.h"

#include <stdexcept>

namespace morvane::test {

/// Lowest and highest number of each field: saturation, red, green, blue, brightness, contrast.
struct SkyRange {
    SliderValues lowest{}, highest{};
};

inline SkyRange brightnessFrom(int lowest, int highest) {
    return {{0, 0, 0, 0, lowest, 0}, {0, 0, 0, 0, highest, 0}};
}
inline SkyRange always(const SliderValues& values) {
    return {values, values};
}

inline SkyRange bandRange(int cloudIndex, char family) {
    if (cloudIndex == 5) return {{-30, -30, -30, -30, -30, -30}, {29, 29, 29, 29, 29, 29}};
    if (family == 'A') return {{-30, -20, 0, -20, -30, -30}, {9, 19, 9, 19, -1, 39}};
    return {{0, 0, -20, -60, -30, -20}, {0, 59, 19, 59, 19, 49}};
}

/// What the random button may give for a group; `family` is 'A' or 'B'.
inline SkyRange skyRange(int cloudIndex, char family, int group) {
    const bool isA = family == 'A', isShadow = group <= 2, isDarkCloud = group == 3;
    if (group >= 8) return bandRange(cloudIndex, family);
    if (group == 5 || group == 6) return {};
    switch (cloudIndex) {
    case 1:
        if (!isA) return {};
        return always(isDarkCloud ? SliderValues{0, 0, 0, -25, 100, 90} : SliderValues{0, 0, 0, 0, 100, 100});
    case 2:
        if (isShadow) return isA ? brightnessFrom(50, 69) : brightnessFrom(-10, -6);
        if (!isA) return {};
        return isDarkCloud ? always({-30, 0, 0, 0, 70, 0}) : brightnessFrom(40, 59);
    case 3:
        if (isA) return brightnessFrom(-30, 29);
        return isShadow ? brightnessFrom(-25, -16) : SkyRange{};
    case 4:
        if (!isA) return isShadow ? brightnessFrom(-50, -31) : SkyRange{};
        if (isShadow) return group == 1 ? brightnessFrom(-50, -41) : brightnessFrom(-70, -51);
        return always({0, 0, 0, 0, -30, 0});
    case 5:
        return isShadow ? brightnessFrom(-30, 29) : brightnessFrom(-20, 19);
    default:
        throw std::invalid_argument("no such cloud cover");
    }
}

} // namespace morvane::test
