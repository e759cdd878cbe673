#pragma once

#include <QByteArray>

namespace morvane::skin {

/// The animation beside a message while the weather program is at work: two turning arrows in text blue on
/// paper, 27 x 27, a GIF that runs for ever.
QByteArray turningArrowsAnimation();

} // namespace morvane::skin
