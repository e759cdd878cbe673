#include "core/literals.h"
#include "imaging/picture_reader.h"
#include "imaging/texture_codec.h"

#include <QtEndian>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cmath>
#include <cstring>
#include <numeric>
#include <random>

namespace morvane {
namespace {

constexpr int side = 256;

/// Soft slopes, furrows and grain, as ground textures have them: the encoder's speed depends on the contents.
Picture groundLikePicture() {
    Picture picture{side, side, std::vector<std::uint8_t>(std::size_t{3} * side * side)};
    std::mt19937 random(1);
    for (std::size_t at = 0; at < picture.rows.size(); ++at) {
        const double x = static_cast<double>(at / 3 % side), y = static_cast<double>(at / 3 / side);
        const double slopes = 40 * std::sin(x * 0.05) + 40 * std::cos(y * 0.07 + x * 0.02);
        const double furrows = 12 * std::sin(x * 0.7 + y * 0.3);
        const double grain = static_cast<double>(random() % 17);
        picture.rows[at] = static_cast<std::uint8_t>(std::clamp(
            110 + (slopes + furrows) * (0.6 + 0.2 * static_cast<double>(at % 3)) + grain, 0.0, 255.0));
    }
    return picture;
}

/// The picture as a file of 24 bits with its pixels at offset 58.
QByteArray plainFile(const Picture& picture) {
    QByteArray file(58, '\0');
    std::memcpy(file.data(), "BM", 2);
    const std::pair<int, int> fields[] = {
        {10, 58}, {14, 40}, {18, picture.width}, {22, picture.height}, {26, 24 << 16 | 1}};
    for (const auto& [at, value] : fields)
        qToLittleEndian<qint32>(value, file.data() + at);
    return file.append(reinterpret_cast<const char*>(picture.rows.data()),
                       static_cast<qsizetype>(picture.rows.size()));
}

/// Items are the pixels of the first level; the smaller ones are encoded too and not counted.
void compressing(benchmark::State& state) {
    const Picture picture = groundLikePicture();
    for (auto _ : state)
        benchmark::DoNotOptimize(compressTexture(picture));
    state.SetItemsProcessed(state.iterations() * side * side);
}
BENCHMARK(compressing)->Unit(benchmark::kMicrosecond);

/// Likeness of the texture's first level to its source, in decibels. Equal pictures count as if one channel
/// of one pixel were off by one: no mean can hold the infinity that they have.
double likeness(const Picture& source, const QByteArray& texture) {
    const Picture shown = readPicture(texture);
    double squares = 0;
    for (std::size_t i = 0; i < source.rows.size(); ++i)
        squares += std::pow(source.rows[i] - shown.rows[i], 2);
    return 10 * std::log10(255.0 * 255.0 * static_cast<double>(source.rows.size()) / std::max(squares, 1.0));
}

/// Drawn ground is not real ground: this one takes the base pictures in the folder that MORVANE_STOCK names.
/// The worst of them tells more than the mean. Items are pixels of first levels.
void compressingStock(benchmark::State& state) {
    NativeFileSystem files;
    const FilePath folder(qEnvironmentVariable("MORVANE_STOCK"));
    const QStringList names = folder.isEmpty() ? QStringList() : files.list(folder, u"*.bmp"_s);
    if (names.isEmpty()) state.SkipWithError("set MORVANE_STOCK to a folder of base pictures (*.bmp)");
    std::int64_t pixels = 0;
    std::vector<double> found;
    for (auto _ : state)
        for (const QString& name : names) {
            state.PauseTiming();
            const Picture source = loadPicture(files, folder.child(name));
            state.ResumeTiming();
            const QByteArray texture = compressTexture(source);
            state.PauseTiming();
            if (!texture.isEmpty()) {
                found.push_back(likeness(source, texture));
                pixels += std::int64_t{source.width} * source.height;
            }
            state.ResumeTiming();
        }
    if (found.empty()) return;
    state.SetItemsProcessed(pixels);
    state.counters["pictures"] = static_cast<double>(found.size());
    state.counters["smallest dB"] = std::ranges::min(found);
    state.counters["mean dB"] =
        std::accumulate(found.begin(), found.end(), 0.0) / static_cast<double>(found.size());
}
BENCHMARK(compressingStock)->Unit(benchmark::kMillisecond)->Iterations(1);

void readingPlain(benchmark::State& state) {
    const QByteArray file = plainFile(groundLikePicture());
    for (auto _ : state)
        benchmark::DoNotOptimize(readPicture(file));
    state.SetBytesProcessed(state.iterations() * file.size());
}
BENCHMARK(readingPlain)->Unit(benchmark::kMicrosecond);

/// Bytes are those of the picture that comes out.
void readingTexture(benchmark::State& state) {
    const QByteArray file = compressTexture(groundLikePicture());
    for (auto _ : state)
        benchmark::DoNotOptimize(readPicture(file));
    state.SetBytesProcessed(state.iterations() * 3 * side * side);
}
BENCHMARK(readingTexture)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace morvane
