#pragma once

#include "imaging/channel_steps.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace morvane {

/// `process` at saturation 0, for channels within `lowestStepped` and `highestStepped`.
///
/// The way to HLS and back is then the identity but for two cases, both born of its cuts to 32-bit floats:
/// where largest and smallest channel differ and add up to 0 the pixel comes back black, where they add up to
/// 510 white, whatever the middle channel. All triples were tried.
class UnsaturatedKernel {
public:
    explicit UnsaturatedKernel(const ChannelTables& tables);
    /// Recolours pixels of three bytes; both may be the same memory.
    void run(const std::uint8_t* source, std::uint8_t* destination, std::size_t pixels) const;

private:
    /// What one byte of one channel adds to its pixel. Joined by "or", the three `placed` are the result's
    /// bytes; the maxima of the three `stepped` and `negated` are the largest channel and minus the smallest.
    struct Entry {
        std::uint32_t placed;
        std::int16_t stepped;
        std::int16_t negated;
    };
    struct Lookup;

    std::array<std::array<Entry, 256>, channelCount> entries_;
};

} // namespace morvane
