#include "core/text_decoding.h"
#include "fuzz_entry.h"
#include "weather/airport_rows.h"
#include "weather/coordinates.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace morvane;
    return test::feed(data, size, [](const QByteArray& bytes) {
        for (const AirportRow& row : parseAirportTable(decodeText(bytes)))
            getDistanceNM(requiredDegrees(row.latitude), requiredDegrees(row.longitude), 52, 4);
    });
}
