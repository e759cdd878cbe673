#pragma once

#include "core/user_interface.h"
#include "imaging/recolouring.h"
#include "imaging/sky_group.h"

#include <functional>
#include <optional>

namespace morvane {

/// Recolours pixel buffers. Every operation reads `source` and writes `destination`, which must be as large.
/// Any failure ends the operation, with the destination partly written, and is told to the user; the caller
/// goes on.
class cColourise {
public:
    explicit cColourise(UserInterface& user) : user_(user) {}

    float brightness = 0; ///< percent added to the level
    float contrast = 0;   ///< percent added to the spread around level 127
    float Red = 0;        ///< percent added to the channel
    float green = 0;
    float blue = 0;
    float saturation = 0; ///< percent added to the HLS saturation

    SkyGroups skyTextureGroups;
    SkyGroups skyPaletteGroups;

    void process(const cDIBSection& source, cDIBSection& destination);
    /// Applies `skyTextureGroups`, each to its own pixels; the six properties have no part in it.
    void processSkyTexture(const cDIBSection& source, cDIBSection& destination);
    /// The same with `skyPaletteGroups`.
    void processSky(const cDIBSection& source, cDIBSection& destination);

private:
    void report(const std::function<void()>& operation);
    ColourValues values() const { return {saturation, Red, green, blue, brightness, contrast}; }
    const Recolouring& recolouring();
    void processGroups(const SkyGroups& groups, const cDIBSection& source, cDIBSection& destination);

    UserInterface& user_;
    std::optional<Recolouring> recolouring_; ///< of the last values: a set has the same for all its files
};

/// `cColourise.processSkyTexture` as a pure operation, for any thread. Raises what walkPixels and the
/// arithmetic of a group raise.
void recolourSky(const SkyGroups& groups, const cDIBSection& source, cDIBSection& destination);

} // namespace morvane
