#include "core/text_decoding.h"
#include "fuzz_entry.h"
#include "weather/station_list.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    morvane::parseStationList(morvane::decodeText(morvane::test::bytesOf(data, size)));
    return 0;
}
