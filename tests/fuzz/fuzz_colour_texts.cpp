#include "core/text_decoding.h"
#include "fuzz_entry.h"
#include "imaging/recolouring.h"
#include "sets/colour_settings.h"
#include "sky/sky_groups.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace morvane;
    return test::feed(data, size, [](const QByteArray& bytes) {
        const ColourValues colours = parseColourSettings(decodeText(bytes));
        if (areWithinSliders(colours)) parseColourSettings(colourSettingsText(colours));
        Recolouring recolouring(colours);
        parseSkyColourString(decodeText(bytes));
    });
}
