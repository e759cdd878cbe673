#include "imaging/colour_blocks.h"
#include "imaging/picture_reader.h"
#include "imaging/texture_codec.h"
#include "imaging/texture_level.h"

#include <QtEndian>
#include <benchmark/benchmark.h>
#include <cmath>
#include <cstring>
#include <random>
#include <string.h> // the next header needs it and does not say so

#define STB_DXT_STATIC
#define STB_DXT_IMPLEMENTATION
#include <stb/stb_dxt.h>

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

constexpr int headerSize = 74;

/// Likeness of the first level to its source, in decibels.
double likeness(const Picture& source, const QByteArray& texture) {
    const Picture shown = readPicture(texture);
    double squares = 0;
    for (std::size_t i = 0; i < source.rows.size(); ++i)
        squares += std::pow(source.rows[i] - shown.rows[i], 2);
    return 10 * std::log10(255.0 * 255.0 * static_cast<double>(source.rows.size()) / squares);
}

/// One level through our encoder or the other, with the picture at hand as both want it.
template <class Encode>
void encodingFirstLevel(benchmark::State& state, Encode encodeFour) {
    const Picture picture = groundLikePicture();
    const TextureLevel level = levelOf(picture);
    QByteArray texture = compressTexture(picture);
    for (auto _ : state) {
        auto* target = reinterpret_cast<std::uint8_t*>(texture.data()) + headerSize;
        for (std::size_t y = 0; y < side; y += 4)
            for (std::size_t x = 0; x < side; x += 16, target += 32) {
                FourBlockPixels blocks;
                for (std::size_t i = 0; i < 16; ++i)
                    std::memcpy(blocks[i / 4].data() + i % 4 * 16,
                                &level.pixels[((y + i % 4) * side + x + i / 4 * 4) * 4], 16);
                encodeFour(blocks, target);
            }
    }
    state.SetItemsProcessed(state.iterations() * side * side);
    state.counters["dB"] = likeness(picture, texture);
}

void encodeWithOther(const FourBlockPixels& blocks, std::uint8_t* target) {
    for (const BlockPixels& block : blocks) {
        stb_compress_dxt_block(target, block.data(), 0, STB_DXT_HIGHQUAL);
        target += 8;
    }
}

BENCHMARK_CAPTURE(encodingFirstLevel, ours, encodeColourBlocks)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(encodingFirstLevel, stb_dxt, encodeWithOther)->Unit(benchmark::kMicrosecond);

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
