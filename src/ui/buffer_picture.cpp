#include "ui/buffer_picture.h"

#include "imaging/pixel_buffer.h"

namespace morvane {

QImage pictureOf(const cDIBSection& buffer) {
    if (!buffer.isCreated()) return {};
    QImage picture(buffer.Width(), buffer.Height(), QImage::Format_RGB32);
    buffer.PaintPicture(picture);
    return picture;
}

} // namespace morvane
