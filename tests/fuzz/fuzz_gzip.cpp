#include "core/error.h"
#include "weather/gzip_reader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::int64_t largestSize = 64 << 10;
    try {
        morvane::unpackGzip(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)),
                            largestSize);
    } catch (const morvane::Error&) { // a refusal is an answer; anything else is a fault
    }
    return 0;
}
