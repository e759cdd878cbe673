#pragma once

#include "core/file_system.h"
#include "imaging/picture.h"

#include <QImage>

namespace morvane {

/// A picture that stands for a larger one.
struct SmallPicture {
    Picture picture;
    QSize whole;          ///< sides of the picture in the file
    bool isLevel = false; ///< the file has it in that size: it costs no more than a look into the header
};

/// The picture of a bitmap file as small as it may be without a side below `side`, where the file's own is
/// not smaller. Of a texture with levels only the header and the bytes of the level are read; any other is
/// read whole and halved. 0 gives it as it is. Raises what loadPicture raises.
SmallPicture loadSmallPicture(FileSystem& files, const FilePath& path, int side);

/// The picture as often halved as both sides stay at `side` or more; each pixel is the average of four.
Picture halvedTo(Picture picture, int side);

/// For a painter; a null image for an empty picture.
QImage imageOf(const Picture& picture);

} // namespace morvane
