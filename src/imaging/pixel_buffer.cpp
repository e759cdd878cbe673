#include "imaging/pixel_buffer.h"

#include "core/error.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <algorithm>
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

void writeHeaders(std::uint8_t* file, int width, int height) {
    const std::uint32_t pixels = imageSize(width, height);
    file[0] = 'B';
    file[1] = 'M';
    putLittleEndian(file + 2, pixels + fileHeaderSize, 4);
    putLittleEndian(file + 10, fileHeaderSize, 4);
    putLittleEndian(file + 14, 40, 4);
    putLittleEndian(file + 18, static_cast<std::uint32_t>(width), 4);
    putLittleEndian(file + 22, static_cast<std::uint32_t>(height), 4);
    putLittleEndian(file + 26, 1, 2);
    putLittleEndian(file + 28, 24, 2);
    putLittleEndian(file + 34, pixels, 4);
}

/// Sizes of the header are 32 bits wide, and nothing of this program comes near 2 GB.
bool isPossibleSize(int width, int height) {
    constexpr std::int64_t limit = std::numeric_limits<std::int32_t>::max() - 1024;
    return width > 0 && height > 0 && (std::int64_t{width} + 1) * 4 <= limit / height;
}

} // namespace

bool cDIBSection::CreateDIB(int width, int height) {
    if (!isPossibleSize(width, height)) return false;
    try {
        storage_ = std::vector<std::uint8_t>(pixelStart + imageSize(width, height));
    } catch (const std::bad_alloc&) {
        return false;
    }
    width_ = width;
    height_ = height;
    writeHeaders(storage_.data() + fileStart, width, height);
    return true;
}

bool cDIBSection::Create(int width, int height) {
    ClearUp();
    return CreateDIB(width, height);
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

std::span<const std::uint8_t> cDIBSection::file() const {
    if (!isCreated()) return {};
    return {storage_.data() + fileStart, fileHeaderSize + imageSize(width_, height_)};
}

bool cDIBSection::SavePicture(const FilePath& path) const {
    if (!isCreated()) return false;
    QFile file(path.native());
    // Unbuffered: the block goes to the system as it stands, and a full disk shows at once.
    if (!file.open(QIODevice::ReadWrite | QIODevice::Truncate | QIODevice::Unbuffered))
        throw Error(ErrorCode::cannotOpenForWriting, path.text());
    const auto bytes = this->file();
    const auto size = static_cast<qint64>(bytes.size());
    return file.write(reinterpret_cast<const char*>(bytes.data()), size) == size;
}

void cDIBSection::PaintPicture(QImage& target) const {
    if (!isCreated()) return;
    const QImage bottomUp(DIBSectionBitsPtr(), width_, height_, BytesPerScanLine(), QImage::Format_BGR888);
    QPainter(&target).drawImage(0, 0, bottomUp.mirrored());
}

} // namespace morvane
