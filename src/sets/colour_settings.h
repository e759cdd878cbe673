#pragma once

#include "core/session.h"
#include "imaging/colour_values.h"
#include "sets/slider_values.h"

#include <array>

namespace morvane {

/// A `ColorSettings` text: saturation, red, green, blue, brightness, contrast, joined by ":", effective
/// values. Numbers are written with ".". Read are ".", "," and `decimalSeparator`, which a loaded record
/// holds.
QString colourSettingsText(const ColourValues& values);
/// Raises "Subscript out of range" with fewer than six fields and "Type mismatch" when one is no number.
ColourValues parseColourSettings(const QString& text, const QString& decimalSeparator = u"."_s);
/// Whether sliders can stand so: within the ranges that `ColourValues` names.
bool areWithinSliders(const ColourValues& values);
/// Slider positions as effective values: saturation as it is, red, green and blue times 20/100, brightness
/// and contrast times 30/100, in double precision and then cut to 32 bits.
ColourValues effectiveColours(const SliderValues& sliders);
/// The other way, for effective values that came from anywhere; not rounded.
std::array<double, 6> sliderPositions(const ColourValues& values);

} // namespace morvane
