#include "fuzz_entry.h"
#include "imaging/window_region.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace morvane;
    return test::feed(data, size, [](const QByteArray& bytes) {
        test::require(writeWindowRegion(readWindowRegion(bytes)) == bytes);
    });
}
