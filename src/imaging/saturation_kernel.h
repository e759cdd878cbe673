#pragma once

#include "imaging/channel_steps.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace morvane {

/// `process` at any saturation, for channels within `lowestStepped` and `highestStepped`. Gives the same
/// bytes as `mHLSRGB`: it goes the same way with the same cuts to 32-bit floats, eight pixels at a time.
class SaturationKernel {
public:
    /// Whether this machine has the instructions (AVX2 and FMA).
    static bool isSupported();

    SaturationKernel(const ChannelTables& tables, float saturation);
    /// Recolours pixels of three bytes; both may be the same memory.
    void run(const std::uint8_t* source, std::uint8_t* destination, std::size_t pixels) const;

private:
    /// Stepped channels divided by 255, cut to floats.
    std::array<std::array<float, 256>, channelCount> levels_;
    double saturationPercent_; ///< 100 leaves it as it is
};

} // namespace morvane
