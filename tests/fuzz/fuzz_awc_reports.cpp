#include "core/error.h"
#include "core/text_decoding.h"
#include "weather/awc_reports.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace morvane;
    try {
        awcReports(decodeText({reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)}));
    } catch (const Error&) { // a refusal is an answer; anything else is a fault
    }
    return 0;
}
