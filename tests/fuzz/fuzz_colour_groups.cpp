#include "fuzz_entry.h"
#include "imaging/colouriser.h"
#include "sky/sky_groups.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace morvane;
    return test::feed(data, size, [](const QByteArray& bytes) {
        const SkyGroups groups = parseSkyGroups(bytes);
        cDIBSection source, result;
        test::require(source.Create(32, 32) && result.Create(32, 32));
        recolourSky(groups, source, result);
    });
}
