#include "imaging/recolouring.h"

#include <benchmark/benchmark.h>
#include <random>

namespace {

using namespace morvane;

cDIBSection noise(int side) {
    cDIBSection buffer;
    buffer.Create(side, side);
    std::mt19937 random(1);
    for (int i = 0; i < buffer.BytesPerScanLine() * side; ++i)
        buffer.DIBSectionBitsPtr()[i] = static_cast<std::uint8_t>(random());
    return buffer;
}

/// Arguments: side of the buffer, saturation. Noise is the worst case: no two pixels alike.
void process(benchmark::State& state) {
    const auto side = static_cast<int>(state.range(0));
    const cDIBSection source = noise(side);
    cDIBSection destination;
    destination.Create(side, side);
    const Recolouring recolouring({static_cast<float>(state.range(1)), 4, -6, 8, 12, 15});
    for (auto _ : state) {
        recolouring.apply(source, destination);
        benchmark::DoNotOptimize(destination.DIBSectionBitsPtr());
    }
    state.counters["megapixels/s"] =
        benchmark::Counter(side * side / 1e6, benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(process)->ArgNames({"side", "saturation"})->ArgsProduct({{256, 1024}, {0, 37, 50}});

} // namespace
