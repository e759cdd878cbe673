#pragma once

#include "core/clock.h"
#include "core/file_path.h"
#include "imaging/picture.h"

#include <cstdint>
#include <optional>
#include <vector>

class QImage;

namespace morvane {

/// The image buffer of the program: 24-bit pixels (blue, green, red), rows bottom-up, each row
/// `BytesPerScanLine` long. Empty after construction and after `ClearUp`. The pixels stay at one address
/// while the buffer is live, also when the object is moved.
class cDIBSection {
public:
    /// Remembered for the program's sake; there is no drawing library behind it.
    bool UseDrawDib() const { return useDrawDib_; }
    void UseDrawDib(bool use) { useDrawDib_ = use; }

    /// Allocates 24-bit pixels, all 0. False, and nothing changed, when a side is not positive or there is no
    /// memory for them.
    bool CreateDIB(int width, int height);
    /// The same with 32-bit pixels. `BytesPerScanLine` and the saved file keep to the formula of 24 bits and
    /// are too small for them: wanted.
    bool CreateDIB32(int width, int height);
    /// Takes size and pixels of the picture; stays empty when that fails.
    void CreateFromPicture(const Picture& picture);
    /// Clears, then allocates 24-bit pixels; keeps `UseDrawDib` when it succeeds. False leaves it empty.
    bool Create(int width, int height);

    bool isCreated() const { return !storage_.empty(); }
    int BytesPerScanLine() const { return bytesPerRow(width_); }
    int Width() const { return width_; }
    int Height() const { return height_; }

    /// Copies a region of another buffer into the top-left corner, as far as both reach. The source position
    /// counts from its top-left corner; a negative width or height means the whole of this buffer.
    void LoadPictureBlt(const cDIBSection& source, int sourceX = 0, int sourceY = 0, int width = -1,
                        int height = -1);
    /// Writes the pixels as a BMP file, replacing an existing one. An unopenable file raises error 17 with
    /// its path; a failed write, or an empty buffer, gives false.
    bool SavePicture(const FilePath& path) const;
    /// Paints a region into an image; positions count from the top-left corners, a negative width or height
    /// means the whole buffer.
    void PaintPicture(QImage& target, int targetX = 0, int targetY = 0, int width = -1, int height = -1,
                      int sourceX = 0, int sourceY = 0) const;

    /// The first byte of the bottom row; null when empty.
    std::uint8_t* DIBSectionBitsPtr();
    const std::uint8_t* DIBSectionBitsPtr() const;
    std::uint8_t* row(int y) { return DIBSectionBitsPtr() + rowOffset(y); }
    const std::uint8_t* row(int y) const { return DIBSectionBitsPtr() + rowOffset(y); }

    /// Fills the buffer with noise: one value for all channels of a pixel, row by row, or no blue at all and
    /// two values for green and red, column by column.
    void RandomiseBits(bool grey, RandomSource& random);
    void ClearUp();
    /// A scaled copy (bilinear); nothing on failure.
    std::optional<cDIBSection> Resample(int newHeight, int newWidth) const;

private:
    std::size_t rowOffset(int y) const { return static_cast<std::size_t>(y) * BytesPerScanLine(); }
    bool allocate(int width, int height, int bitsPerPixel);

    int width_ = 0;
    int height_ = 0;
    bool useDrawDib_ = false;
    /// The whole BMP file, headers in front of the pixels, so that saving is one write.
    std::vector<std::uint8_t> storage_;
};

} // namespace morvane
