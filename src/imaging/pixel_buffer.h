#pragma once

#include "core/file_path.h"
#include "imaging/picture.h"

#include <cstdint>
#include <span>
#include <vector>

class QImage;

namespace morvane {

/// The image buffer of the program: 24-bit pixels (blue, green, red), rows bottom-up, each row
/// `BytesPerScanLine` long. Empty after construction and after `ClearUp`. The pixels stay at one address
/// while the buffer is live, also when the object is moved.
class cDIBSection {
public:
    /// Allocates 24-bit pixels, all 0. False, and nothing changed, when a side is not positive or there is no
    /// memory for them.
    bool CreateDIB(int width, int height);
    /// Takes size and pixels of the picture; stays empty when that fails.
    void CreateFromPicture(const Picture& picture);
    /// Clears, then allocates 24-bit pixels. False leaves it empty.
    bool Create(int width, int height);

    bool isCreated() const { return !storage_.empty(); }
    int BytesPerScanLine() const { return bytesPerRow(width_); }
    int Width() const { return width_; }
    int Height() const { return height_; }

    /// The pixels as a whole BMP file; empty for an empty buffer. Stands as long as the buffer is live.
    std::span<const std::uint8_t> file() const;
    /// Writes the pixels as a BMP file, replacing an existing one. An unopenable file raises error 17 with
    /// its path; a failed write, or an empty buffer, gives false.
    bool SavePicture(const FilePath& path) const;
    /// Paints the whole buffer into the image's top-left corner.
    void PaintPicture(QImage& target) const;

    /// The first byte of the bottom row; null when empty.
    std::uint8_t* DIBSectionBitsPtr();
    const std::uint8_t* DIBSectionBitsPtr() const;
    std::uint8_t* row(int y) { return DIBSectionBitsPtr() + rowOffset(y); }
    const std::uint8_t* row(int y) const { return DIBSectionBitsPtr() + rowOffset(y); }

    void ClearUp();

private:
    std::size_t rowOffset(int y) const { return static_cast<std::size_t>(y) * BytesPerScanLine(); }

    int width_ = 0;
    int height_ = 0;
    /// The whole BMP file, headers in front of the pixels, so that saving is one write.
    std::vector<std::uint8_t> storage_;
};

} // namespace morvane
