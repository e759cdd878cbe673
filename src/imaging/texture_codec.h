#pragma once

#include "core/file_system.h"
#include "imaging/picture.h"

namespace morvane {

/// A side that a texture can have: a power of two from 4 to 1024.
bool isTextureSide(int side);

/// The file of a ground texture with these pixels, as docs/texture_format.md tells: opaque DXT1 with all
/// levels down to 1 x 1. Empty when a side is none that a texture can have; resizing would hide a wrong
/// source. Touches nothing but its argument, so any thread may call it.
QByteArray compressTexture(const Picture& picture);

/// The conversion of one file, with the six arguments that its callers have always given. Format "1" with 10,
/// -1 and 0 selects what compressTexture writes: the opaque texture, ten levels below the first at most, no
/// alpha, no further options. There is no other selection.
///
/// Replaces an existing target. When the source cannot be read, its sides are refused or the target cannot be
/// written, a target of before is left alone and none appears. True when the target was written: callers
/// ignore it, as a set whose file is missing is one file shorter and nothing worse.
bool BMPScompressBMPVB(FileSystem& files, const FilePath& source, const QString& format, int levels,
                       int alpha, int options, const FilePath& target);

} // namespace morvane
