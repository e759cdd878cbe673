#pragma once

#include "imaging/pixel_rows.h"

#include <cstring>

namespace morvane {

/// The palette of a file, as lines of blue, green, red.
class Palette {
public:
    Palette(const BitmapHeader& header, Bytes file)
        : entrySize_(static_cast<std::size_t>(header.paletteEntrySize)),
          entries_(
              partOf(file, header.paletteAt, static_cast<std::size_t>(header.paletteEntries) * entrySize_)) {}

    /// Writes the colour to three bytes; refuses the picture when the palette has no such entry.
    void paint(std::size_t index, std::uint8_t* pixel) const {
        const std::size_t at = index * entrySize_;
        if (at >= entries_.size()) refusePicture(u"a colour is missing in its palette");
        std::memcpy(pixel, entries_.data() + at, 3);
    }

private:
    std::size_t entrySize_;
    Bytes entries_;
};

} // namespace morvane
