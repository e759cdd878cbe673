#pragma once

#include "imaging/picture.h"

#include <QString>
#include <array>
#include <map>

namespace morvane::test {

using Colour = std::array<int, 3>; ///< red, green, blue

/// The pixel at column x of row y, row 0 being the bottom one.
inline Colour pixelAt(const Picture& picture, int x, int y) {
    const std::uint8_t* pixel = picture.rows.data() + bytesPerRow(picture.width) * y + 3 * x;
    return {pixel[2], pixel[1], pixel[0]};
}

/// The picture as a person sees it, top row first, rows parted by "/". A pixel is one letter, r g b y w k for
/// red, green, blue, yellow, white and black at full strength, or "#rrggbb".
inline std::string lettersOf(const Picture& picture) {
    const std::map<Colour, std::string> letters = {{{255, 0, 0}, "r"},     {{0, 255, 0}, "g"},
                                                   {{0, 0, 255}, "b"},     {{255, 255, 0}, "y"},
                                                   {{255, 255, 255}, "w"}, {{0, 0, 0}, "k"}};
    std::string seen;
    for (int y = picture.height - 1; y >= 0; --y) {
        for (int x = 0; x < picture.width; ++x) {
            const Colour colour = pixelAt(picture, x, y);
            const auto known = letters.find(colour);
            seen += known != letters.end()
                        ? known->second
                        : QString::asprintf("#%02x%02x%02x", colour[0], colour[1], colour[2]).toStdString();
        }
        if (y > 0) seen += '/';
    }
    return seen;
}

} // namespace morvane::test
