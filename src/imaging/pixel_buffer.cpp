#include "imaging/pixel_buffer.h"

#include "core/error.h"
#include "core/numbers.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <new>

namespace morvane {

namespace {

/// 14 bytes of file header, 40 of bitmap header and 4 of an empty colour table entry, which a 24-bit file
/// would not need: the layout that the simulator and the codec read.
constexpr std::size_t fileHeaderSize = 58;
/// Pixels start here in the storage, so that they are aligned; the file starts a little before.
constexpr std::size_t pixelStart = 64;
constexpr std::size_t fileStart = pixelStart - fileHeaderSize;

void putLittleEndian(std::uint8_t* at, std::uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i)
        at[i] = static_cast<std::uint8_t>(value >> (8 * i));
}

std::uint32_t imageSize(int width, int height) {
    return static_cast<std::uint32_t>(bytesPerRow(width)) * static_cast<std::uint32_t>(height);
}

void writeHeaders(std::uint8_t* file, int width, int height, int bitsPerPixel) {
    const std::uint32_t pixels = imageSize(width, height);
    file[0] = 'B';
    file[1] = 'M';
    putLittleEndian(file + 2, pixels + fileHeaderSize, 4);
    putLittleEndian(file + 10, fileHeaderSize, 4);
    putLittleEndian(file + 14, 40, 4);
    putLittleEndian(file + 18, static_cast<std::uint32_t>(width), 4);
    putLittleEndian(file + 22, static_cast<std::uint32_t>(height), 4);
    putLittleEndian(file + 26, 1, 2);
    putLittleEndian(file + 28, static_cast<std::uint32_t>(bitsPerPixel), 2);
    putLittleEndian(file + 34, pixels, 4);
}

/// Sizes of the header are 32 bits wide, and nothing of this program comes near 2 GB.
bool isPossibleSize(int width, int height) {
    constexpr std::int64_t limit = std::numeric_limits<std::int32_t>::max() - 1024;
    return width > 0 && height > 0 && (std::int64_t{width} + 1) * 4 <= limit / height;
}

/// Between two rows (or columns) of the source: the index of the first and how far beyond it.
struct Between {
    int first;
    int second;
    double fraction;
};

Between between(int target, double scale, int sourceCount) {
    const double position = target * scale;
    const int first = static_cast<int>(std::floor(position));
    return {first, std::min(first + 1, sourceCount - 1), position - first};
}

std::int32_t blended(int first, int second, double fraction) {
    return roundToLong((1 - fraction) * first + fraction * second);
}

/// One channel of one target pixel. Each direction is rounded by itself, along y first.
std::uint8_t resampled(const cDIBSection& source, const Between& x, const Between& y, int channel) {
    const auto alongY = [&](int column) {
        const int offset = 3 * column + channel;
        return blended(source.row(y.first)[offset], source.row(y.second)[offset], y.fraction);
    };
    return static_cast<std::uint8_t>(
        std::clamp(blended(alongY(x.first), alongY(x.second), x.fraction), 0, 255));
}

void paintNoise(std::uint8_t* pixel, std::array<std::uint8_t, 3> values) {
    std::copy(values.begin(), values.end(), pixel);
}

} // namespace

bool cDIBSection::CreateDIB(int width, int height) {
    return allocate(width, height, 24);
}

bool cDIBSection::CreateDIB32(int width, int height) {
    return allocate(width, height, 32);
}

bool cDIBSection::allocate(int width, int height, int bitsPerPixel) {
    if (!isPossibleSize(width, height)) return false;
    const std::size_t pixels = static_cast<std::size_t>(width) * height;
    const std::size_t size = bitsPerPixel == 32 ? 4 * pixels : 0;
    try {
        storage_ =
            std::vector<std::uint8_t>(pixelStart + std::max<std::size_t>(size, imageSize(width, height)));
    } catch (const std::bad_alloc&) {
        return false;
    }
    width_ = width;
    height_ = height;
    writeHeaders(storage_.data() + fileStart, width, height, bitsPerPixel);
    return true;
}

bool cDIBSection::Create(int width, int height) {
    const bool usedDrawDib = useDrawDib_;
    ClearUp();
    if (!CreateDIB(width, height)) return false;
    useDrawDib_ = usedDrawDib;
    return true;
}

void cDIBSection::CreateFromPicture(const Picture& picture) {
    if (!Create(picture.width, picture.height)) return;
    if (picture.rows.size() != imageSize(width_, height_)) {
        ClearUp();
        throw Error(ErrorCode::invalidCall);
    }
    std::copy(picture.rows.begin(), picture.rows.end(), DIBSectionBitsPtr());
}

void cDIBSection::ClearUp() {
    *this = cDIBSection();
}

std::uint8_t* cDIBSection::DIBSectionBitsPtr() {
    return isCreated() ? storage_.data() + pixelStart : nullptr;
}

const std::uint8_t* cDIBSection::DIBSectionBitsPtr() const {
    return isCreated() ? storage_.data() + pixelStart : nullptr;
}

void cDIBSection::LoadPictureBlt(const cDIBSection& source, int sourceX, int sourceY, int width, int height) {
    const int columns = width < 0 ? width_ : std::min(width, width_);
    const int rows = height < 0 ? height_ : std::min(height, height_);
    const int firstColumn = std::max(0, -sourceX);
    const int endColumn = std::min(columns, source.width_ - sourceX);
    if (firstColumn >= endColumn) return;
    for (int y = std::max(0, -sourceY); y < std::min(rows, source.height_ - sourceY); ++y) {
        const std::uint8_t* from =
            source.row(source.height_ - 1 - (sourceY + y)) + 3 * (sourceX + firstColumn);
        std::copy_n(from, 3 * (endColumn - firstColumn), row(height_ - 1 - y) + 3 * firstColumn);
    }
}

bool cDIBSection::SavePicture(const FilePath& path) const {
    if (!isCreated()) return false;
    QFile file(path.native());
    // Unbuffered: the block goes to the system as it stands, and a full disk shows at once.
    if (!file.open(QIODevice::ReadWrite | QIODevice::Truncate | QIODevice::Unbuffered))
        throw Error(ErrorCode::cannotOpenForWriting, path.text());
    const auto size = static_cast<qint64>(fileHeaderSize + imageSize(width_, height_));
    return file.write(reinterpret_cast<const char*>(storage_.data() + fileStart), size) == size;
}

void cDIBSection::PaintPicture(QImage& target, int targetX, int targetY, int width, int height, int sourceX,
                               int sourceY) const {
    if (!isCreated()) return;
    const QImage bottomUp(DIBSectionBitsPtr(), width_, height_, BytesPerScanLine(), QImage::Format_BGR888);
    const QRect region(sourceX, sourceY, width < 0 ? width_ : width, height < 0 ? height_ : height);
    QPainter painter(&target);
    painter.drawImage(QPoint(targetX, targetY), bottomUp.mirrored(), region);
}

void cDIBSection::RandomiseBits(bool grey, RandomSource& random) {
    const auto value = [&] { return static_cast<std::uint8_t>(roundToLong(random.draw() * 255)); };
    const auto greyPixel = [&](int x, int y) {
        const std::uint8_t level = value();
        paintNoise(row(y) + 3 * x, {level, level, level});
    };
    const auto colouredPixel = [&](int x, int y) {
        const std::uint8_t green = value();
        paintNoise(row(y) + 3 * x, {0, green, value()});
    };
    const int outerCount = grey ? height_ : width_;
    const int innerCount = grey ? width_ : height_;
    for (int outer = 0; outer < outerCount; ++outer)
        for (int inner = 0; inner < innerCount; ++inner)
            grey ? greyPixel(inner, outer) : colouredPixel(outer, inner);
}

std::optional<cDIBSection> cDIBSection::Resample(int newHeight, int newWidth) const {
    cDIBSection copy;
    if (!isCreated() || !copy.Create(newWidth, newHeight)) return std::nullopt;
    const double xScale = static_cast<double>(width_ - 1) / newWidth;
    const double yScale = static_cast<double>(height_ - 1) / newHeight;
    if (newWidth == width_ && newHeight == height_) {
        std::copy_n(DIBSectionBitsPtr(), imageSize(width_, height_), copy.DIBSectionBitsPtr());
        return copy;
    }
    for (int y = 0; y < newHeight; ++y)
        for (int offset = 0; offset < 3 * newWidth; ++offset)
            copy.row(y)[offset] = resampled(*this, between(offset / 3, xScale, width_),
                                            between(y, yScale, height_), offset % 3);
    return copy;
}

} // namespace morvane
