#pragma once

#include "imaging/pixel_buffer.h"
#include "imaging/saturation_kernel.h"
#include "imaging/unsaturated_kernel.h"

#include <optional>

namespace morvane {

/// `cColourise.process` as a pure operation: made once for a set's colours, then applied to any number of
/// buffers, also by several threads at a time.
class Recolouring {
public:
    explicit Recolouring(const ColourValues& values);
    const ColourValues& values() const { return values_; }

    /// Reads `source` and writes `destination`, which may be the same buffer. Raises "Invalid procedure call"
    /// for a buffer never created, "Subscript out of range" when the destination is smaller, and "Overflow",
    /// with the destination partly written, for values far outside the sliders.
    void apply(const cDIBSection& source, cDIBSection& destination) const;

private:
    bool hasKernel() const { return unsaturated_ || saturated_; }
    void applyKernel(const std::uint8_t* source, std::uint8_t* destination, std::size_t pixels) const;

    ColourValues values_;
    std::optional<UnsaturatedKernel> unsaturated_;
    std::optional<SaturationKernel> saturated_;
};

/// The same for a single buffer.
void recolour(const ColourValues& values, const cDIBSection& source, cDIBSection& destination);

} // namespace morvane
