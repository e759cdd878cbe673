#include "fuzz_entry.h"
#include "weather/cycle_reports.h"

/// The Aviation Weather Center's form has an entry of its own.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace morvane;
    return test::feed(data, size, [](const QByteArray& bytes) {
        const auto lines = cycleReports(bytes, CycleForm::plain);
        test::require(cycleReports(bytes, CycleForm::noaa).size() <= lines.size() + 1);
        test::require(exportReports(bytes).size() <= lines.size() + 1);
    });
}
