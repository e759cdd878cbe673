#include "imaging/colour_block.h"

#include <string.h> // the encoder's header needs it and does not say so

#define STB_DXT_STATIC
#define STB_DXT_IMPLEMENTATION
#include <stb/stb_dxt.h>

namespace morvane {

void encodeColourBlock(const BlockPixels& pixels, std::uint8_t* target) {
    stb_compress_dxt_block(target, pixels.data(), 0, STB_DXT_HIGHQUAL);
    // The encoder writes index 2 for all pixels of a plain block even when both its ends are the same.
    if (memcmp(target, target + 2, 2) == 0) memset(target + 4, 0, 4);
}

} // namespace morvane
