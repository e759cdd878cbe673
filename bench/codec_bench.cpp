#include "core/literals.h"
#include "imaging/picture_reader.h"
#include "imaging/texture_codec.h"

#include <QDirIterator>
#include <QImage>
#include <QtEndian>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cmath>
#include <cstring>
#include <numeric>
#include <random>

#if __has_include(<stb/stb_dxt.h>)
#define STB_DXT_IMPLEMENTATION
#include <stb/stb_dxt.h>
#endif

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

#if __has_include(<stb/stb_dxt.h>)
/// The texture with the first level of a well-kept library in place of ours: the yardstick.
QByteArray withLibrarysLevel(const Picture& source, QByteArray texture) {
    auto* block = reinterpret_cast<unsigned char*>(texture.data()) + 74;
    for (int row = 0; row < source.height; row += 4)
        for (int column = 0; column < source.width; column += 4, block += 8) {
            unsigned char pixels[16][4];
            for (int i = 0; i < 16; ++i) {
                const auto* from =
                    &source
                         .rows[3U * static_cast<std::size_t>((row + i / 4) * source.width + column + i % 4)];
                const unsigned char pixel[] = {from[2], from[1], from[0], 255};
                std::ranges::copy(pixel, pixels[i]);
            }
            stb_compress_dxt_block(block, pixels[0], 0, STB_DXT_HIGHQUAL);
        }
    return texture;
}
#endif

double meanOf(const std::vector<double>& numbers) {
    return std::accumulate(numbers.begin(), numbers.end(), 0.0) / static_cast<double>(numbers.size());
}

/// Items are pixels of first levels. The worst picture tells more than the mean.
void compressAll(benchmark::State& state, const std::vector<Picture>& pictures) {
    std::int64_t pixels = 0;
    std::vector<double> ours, librarys, lost;
    for (auto _ : state)
        for (const Picture& source : pictures) {
            const QByteArray texture = compressTexture(source);
            state.PauseTiming();
            pixels += std::int64_t{source.width} * source.height;
            ours.push_back(likeness(source, texture));
#if __has_include(<stb/stb_dxt.h>)
            librarys.push_back(likeness(source, withLibrarysLevel(source, texture)));
            lost.push_back(librarys.back() - ours.back());
#endif
            state.ResumeTiming();
        }
    state.SetItemsProcessed(pixels);
    state.counters["pictures"] = static_cast<double>(ours.size());
    state.counters["smallest dB"] = std::ranges::min(ours);
    state.counters["mean dB"] = meanOf(ours);
    if (lost.empty()) return;
    state.counters["library's smallest dB"] = std::ranges::min(librarys);
    state.counters["library's mean dB"] = meanOf(librarys);
    state.counters["most lost to it, dB"] = std::ranges::max(lost);
}

/// Drawn ground is not real ground: this one takes the base pictures in the folder that MORVANE_STOCK names.
void compressingStock(benchmark::State& state) {
    NativeFileSystem files;
    const FilePath folder(qEnvironmentVariable("MORVANE_STOCK"));
    std::vector<Picture> pictures;
    for (const QString& name : folder.isEmpty() ? QStringList() : files.list(folder, u"*.bmp"_s))
        if (Picture picture = loadPicture(files, folder.child(name)); isTextureSide(picture.width))
            pictures.push_back(std::move(picture));
    if (pictures.empty())
        return state.SkipWithError("set MORVANE_STOCK to a folder of base pictures (*.bmp)");
    compressAll(state, pictures);
}
BENCHMARK(compressingStock)->Unit(benchmark::kMillisecond)->Iterations(1);

/// Square pieces of the photographs (*.jpg) below the folder that MORVANE_PHOTOGRAPHS names.
void compressingPhotographs(benchmark::State& state) {
    std::vector<Picture> pictures;
    QDirIterator photographs(qEnvironmentVariable("MORVANE_PHOTOGRAPHS", u"nowhere"_s), {u"*.jpg"_s},
                             QDir::Files, QDirIterator::Subdirectories);
    while (photographs.hasNext()) {
        const QImage whole = QImage(photographs.next()).convertToFormat(QImage::Format_BGR888);
        for (int top = 0; top + side <= whole.height(); top += side)
            for (int left = 0; left + side <= whole.width(); left += side) {
                const QImage piece = whole.copy(left, top, side, side);
                pictures.push_back(
                    {side, side, {piece.constBits(), piece.constBits() + piece.sizeInBytes()}});
            }
    }
    if (pictures.empty()) return state.SkipWithError("set MORVANE_PHOTOGRAPHS to a folder of photographs");
    compressAll(state, pictures);
}
BENCHMARK(compressingPhotographs)->Unit(benchmark::kMillisecond)->Iterations(1);

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
