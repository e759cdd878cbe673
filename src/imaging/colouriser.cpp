#include "imaging/colouriser.h"

#include "core/failure_report.h"
#include "imaging/pixel_recolouring.h"
#include "imaging/pixel_walk.h"

namespace morvane {

void cColourise::report(const std::function<void()>& operation) {
    reportFailures(user_, {}, operation);
}

const Recolouring& cColourise::recolouring() {
    if (!recolouring_ || !(recolouring_->values() == values())) recolouring_.emplace(values());
    return *recolouring_;
}

void cColourise::process(const cDIBSection& source, cDIBSection& destination) {
    report([&] { recolouring().apply(source, destination); });
}

void cColourise::processSkyTexture(const cDIBSection& source, cDIBSection& destination) {
    processGroups(skyTextureGroups, source, destination);
}

void cColourise::processSky(const cDIBSection& source, cDIBSection& destination) {
    processGroups(skyPaletteGroups, source, destination);
}

void cColourise::processGroups(const SkyGroups& groups, const cDIBSection& source, cDIBSection& destination) {
    report([&] { recolourSky(groups, source, destination); });
}

void recolourSky(const SkyGroups& groups, const cDIBSection& source, cDIBSection& destination) {
    walkPixels(source, destination, [&](RgbColour colour, std::uint8_t* target, int x, int y) {
        // What goes on to the next group is not clamped; only what is stored.
        for (const SkyGroup& group : groups) {
            if (belongsToGroup(group, x, y)) colour = recolouredByGroup(group, colour);
            storeClamped(colour, target);
        }
    });
}

} // namespace morvane
