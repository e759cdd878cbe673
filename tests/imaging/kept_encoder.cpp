#include "imaging/kept_encoder.h"

#include <cstring>

#define STB_DXT_IMPLEMENTATION
#include <stb/stb_dxt.h>

namespace morvane::test {

EncodedBlock encodedByLibrary(const BlockGroup& group, std::size_t block) {
    std::uint8_t pixels[64], bytes[8];
    for (std::size_t i = 0; i < 16; ++i) {
        for (std::size_t channel = 0; channel < 3; ++channel)
            pixels[4 * i + channel] =
                static_cast<std::uint8_t>(group.words[channel][i / 4][block] >> (8 * (i % 4)));
        pixels[4 * i + 3] = 255;
    }
    stb_compress_dxt_block(bytes, pixels, 0, STB_DXT_HIGHQUAL);
    EncodedBlock encoded;
    std::memcpy(&encoded, bytes, sizeof bytes);
    return encoded;
}

} // namespace morvane::test
