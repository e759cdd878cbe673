#pragma once

#include "core/file_system.h"
#include "core/reading_limits.h"
#include "imaging/picture.h"

namespace morvane {

/// The picture in the contents of a bitmap file: of any depth, run-length coded or not, top-down or
/// bottom-up, or one of the simulator's extended bitmaps (DXT1, DXT3, DXT5 and the uncompressed kinds, with
/// or without their FS70 block). Alpha is dropped, smaller levels behind the picture are passed over.
///
/// Raises ErrorCode::invalidPicture for anything else, a file that is cut short and sides beyond the bounds
/// of `core/reading_limits.h` included: "it is larger than 1024 pixels a side".
Picture readPicture(const QByteArray& bytes, int largestSide = largestPictureSide);

/// The same from a file; its path is then in the error's description. A missing file and one beyond
/// `largestPictureFile` raise what readAtMost raises.
Picture loadPicture(FileSystem& files, const FilePath& path, int largestSide = largestPictureSide);

} // namespace morvane
