#include "core/numbers.h"
#include "fuzz_entry.h"
#include "weather/coordinates.h"
#include "weather/flight_plan.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace morvane;
    return test::feed(data, size, [](const QByteArray& bytes) {
        const auto plan = parseFlightPlan(bytes);
        for (Waypoint waypoint : plan.value_or(FlightPlan()).waypoints) {
            parseLatLong(waypoint.latitude);
            parseLatLong(waypoint.longitude);
            getDistanceNM(textToNumber(waypoint.latitude), textToNumber(waypoint.longitude), 52, 4);
        }
    });
}
