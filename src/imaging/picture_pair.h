#pragma once

#include "core/file_system.h"
#include "imaging/pixel_buffer.h"

namespace morvane {

/// A base image and a buffer of its size for what is made of it.
struct PicturePair {
    cDIBSection source, result;
};

/// Loads the base image of a file; the result's pixels are all 0. Raises what loadPicture raises, also for
/// one that is larger than a texture can be, and "Out of memory".
PicturePair loadPicturePair(FileSystem& files, const FilePath& path);

} // namespace morvane
