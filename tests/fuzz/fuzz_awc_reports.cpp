#include "core/text_decoding.h"
#include "fuzz_entry.h"
#include "weather/awc_reports.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace morvane;
    return test::feed(data, size, [](const QByteArray& bytes) { awcReports(decodeText(bytes)); });
}
