#include "fuzz_entry.h"
#include "weather/gzip_reader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::int64_t largestSize = 64 << 10;
    return morvane::test::feed(data, size, [](const QByteArray& bytes) {
        morvane::test::require(morvane::unpackGzip(bytes, largestSize).size() <= largestSize);
    });
}
