#include "imaging/picture_reader.h"
#include "imaging/texture_codec.h"

#include <QtEndian>
#include <benchmark/benchmark.h>
#include <cmath>
#include <cstring>
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
