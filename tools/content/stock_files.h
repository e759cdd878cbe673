#pragma once

#include "base_image_list.h"
#include "delivery.h"
#include "imaging/picture.h"

#include <functional>

namespace morvane {

/// Draws the stock of base images into `home`\Resources, compresses each unchanged into the bodies of the
/// base install ("GENERIC WORLD", "UT EUROPE", "UTIND", "DUTCH" below `home`), and lays an older-looking
/// texture of the same name into the sample simulator, in the upper-case spelling that simulators often have.
/// Where a Dutch image and a generic one have the same name, the simulator gets the generic one. An empty
/// `simulator` stands for none. `onDone` is told how many images are done.
void writeStock(const PutFile& put, FileSystem& files, const FilePath& home, const FilePath& simulator,
                const std::vector<BaseImage>& stock, const std::function<void(std::size_t)>& onDone);

/// The contents of a bitmap file of 24 bits.
QByteArray bitmapFile(const Picture& picture);
/// The picture in the sample simulator's colours: paler and browner than any set of ours, so that a change is
/// seen at once.
Picture inSimulatorLook(const Picture& picture);

/// The splash pictures: one a cover, and "dlgsplash.bmp", as a simulator has it.
void writeSplashes(const PutFile& put, const FilePath& media);

/// "halo.bmp" and "halodefault.bmp", which is as a simulator has it.
void writeHalos(const PutFile& put, const FilePath& media);

} // namespace morvane
