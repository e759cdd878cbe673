#pragma once

#include "imaging/paper_palette.h"

#include <QByteArray>

namespace morvane::skin {

/// The animation beside a message while the weather program is at work: two turning arrows in the colour of
/// text on paper, 27 x 27, a GIF that runs for ever.
QByteArray turningArrowsAnimation(PaperPalette palette);

} // namespace morvane::skin
