#include "support/scripted_user.h"
#include "weather/metar_decoder.h"
#include "weather/sample_reports.h"

#include <benchmark/benchmark.h>

namespace morvane {
namespace {

/// Reports a second over everything in data/metar, on one core.
void decodeReports(benchmark::State& state) {
    test::ScriptedUser user;
    const QStringList reports = test::sampleReports();
    for (auto _ : state) {
        for (const QString& report : reports) {
            const clsWxFinder decoded = clsDecodeMetar(user).decodeMetarString(report);
            benchmark::DoNotOptimize(decoded.WxFinderMaxCloud);
        }
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * reports.size());
}
BENCHMARK(decodeReports)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace morvane
