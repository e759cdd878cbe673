#pragma once

#include <QString>

namespace morvane {

/// The range of every colour slider, in percent.
inline constexpr int sliderLowest = -100;
inline constexpr int sliderHighest = 100;

/// What the "-" and "+" buttons beside a slider make of its value: 5 less or more, within the range.
int decremented(int value);
int incremented(int value);

/// The text of a slider's label: "default" for 0, else the value and "%".
QString sliderLabel(int value);

} // namespace morvane
