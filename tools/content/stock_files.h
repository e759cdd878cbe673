#pragma once

#include "base_image_list.h"
#include "core/file_system.h"
#include "imaging/picture.h"

#include <functional>

namespace morvane {

/// Draws the stock of base images into `home`\Resources, compresses each unchanged into the bodies of the
/// base install ("GENERIC WORLD", "UT EUROPE", "UTIND", "DUTCH" below `home`), and lays an older-looking
/// texture of the same name into the sample simulator, in the upper-case spelling that simulators often have.
/// Where a Dutch image and a generic one have the same name, the simulator gets the generic one. An empty
/// `simulator` stands for none. `onDone` is told how many images are done.
void writeStock(FileSystem& files, const FilePath& home, const FilePath& simulator,
                const std::vector<BaseImage>& stock, const std::function<void(std::size_t)>& onDone);

/// As a bitmap file of 24 bits; raises when the disk is full.
void saveBitmap(const Picture& picture, const FilePath& target);
/// The picture in the sample simulator's colours: paler and browner than any set of ours, so that a change is
/// seen at once.
Picture inSimulatorLook(const Picture& picture);

/// The splash pictures below `home`\Media, and the simulator's own in its "Uires".
void writeSplashes(FileSystem& files, const FilePath& home, const FilePath& simulator);

/// "halo.bmp" and "halodefault.bmp" below `home`\Media, and the simulator's own in its "Texture".
void writeHalos(FileSystem& files, const FilePath& home, const FilePath& simulator);

} // namespace morvane
