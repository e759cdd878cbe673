#include "core/error.h"
#include "weather/flight_plan.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        morvane::parseFlightPlan(
            QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    } catch (const morvane::Error&) { // a refusal is an answer; anything else is a fault
    }
    return 0;
}
