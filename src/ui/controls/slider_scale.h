#pragma once

namespace morvane {

/// The arithmetic of a slider. Positions are those of the thumb's
/// left edge in logical pixels from the control's own, fractions kept.
struct SliderScale {
    double travel = 0; ///< length of the control less that of the thumb
    int min = 0;
    int max = 10; ///< above `min`

    /// Where the thumb lies for that value; the highest is at the right.
    /// A value outside the range gives the end of the rail that is next to it.
    double positionOf(int value) const;
    /// The value of a thumb at that position on the rail: the nearest whole one, halves to the even
    /// neighbour.
    int valueAt(double position) const;
    /// The position, or the end of the rail when it lies beyond.
    double onRail(double position) const;

private:
    double range() const { return static_cast<double>(max) - min; }
};

} // namespace morvane
