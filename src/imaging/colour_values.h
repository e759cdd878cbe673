#pragma once

namespace morvane {

/// Six effective colour values in the order of a `ColorSettings` text: what the colouriser takes.
struct ColourValues {
    float saturation = 0; ///< -100..100
    float red = 0;        ///< -20..20, as green and blue
    float green = 0;
    float blue = 0;
    float brightness = 0; ///< -30..30, as contrast
    float contrast = 0;

    bool operator==(const ColourValues&) const = default;
};

} // namespace morvane
