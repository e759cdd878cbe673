#pragma once

#include "base_image_list.h"
#include "imaging/picture.h"

namespace morvane {

/// Draws one file of the stock: 256 x 256. The same file name gives the same bytes on every system, whichever
/// other files the stock holds. The left edge continues the right one, the upper the lower. Safe to call from
/// several threads at once.
Picture drawBaseImage(const BaseImage& image);

} // namespace morvane
