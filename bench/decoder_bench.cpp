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
            clsDecodeMetar metar(user);
            metar.decodeMetarString(report);
            benchmark::DoNotOptimize(metar.MetarMaxCloud);
        }
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * reports.size());
}
BENCHMARK(decodeReports)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace morvane
