#include "imaging/recolouring.h"

#include "core/error.h"
#include "imaging/pixel_recolouring.h"
#include "imaging/pixel_walk.h"

namespace morvane {

void checkBuffers(const cDIBSection& source, const cDIBSection& destination) {
    if (!source.isCreated() || !destination.isCreated()) throw Error(ErrorCode::invalidCall);
    if (destination.BytesPerScanLine() < source.BytesPerScanLine() || destination.Height() < source.Height())
        throw Error(ErrorCode::subscript);
}

Recolouring::Recolouring(const ColourValues& values) : values_(values) {
    // Other values come from a store edited by hand alone: they take the long way, which knows of overflow.
    if (!isWithinSliders(values)) return;
    const ChannelTables tables = steppedChannels(values);
    if (values.saturation == 0)
        unsaturated_.emplace(tables);
    else if (SaturationKernel::isSupported())
        saturated_.emplace(tables, values.saturation);
}

void Recolouring::applyKernel(const std::uint8_t* source, std::uint8_t* destination,
                              std::size_t pixels) const {
    if (unsaturated_)
        unsaturated_->run(source, destination, pixels);
    else
        saturated_->run(source, destination, pixels);
}

void Recolouring::apply(const cDIBSection& source, cDIBSection& destination) const {
    checkBuffers(source, destination);
    if (!hasKernel()) {
        walkPixels(source, destination, [this](const RgbColour& colour, std::uint8_t* target, int, int) {
            storeClamped(recolouredPixel(values_, colour), target);
        });
        return;
    }
    const int stride = source.BytesPerScanLine();
    const auto rowPixels = static_cast<std::size_t>(stride / 3);
    const bool isOneRun = stride % 3 == 0 && destination.BytesPerScanLine() == stride;
    if (isOneRun) {
        applyKernel(source.row(0), destination.row(0), rowPixels * static_cast<std::size_t>(source.Height()));
        return;
    }
    for (int y = 0; y < source.Height(); ++y)
        applyKernel(source.row(y), destination.row(y), rowPixels);
}

void recolour(const ColourValues& values, const cDIBSection& source, cDIBSection& destination) {
    Recolouring(values).apply(source, destination);
}

} // namespace morvane
