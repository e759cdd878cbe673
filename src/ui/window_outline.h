#pragma once

#include <QRegion>

class QWidget;

namespace morvane {

/// Whether an outline in pixels of the screen can be had. A widget's mask goes by the toolkit's points, each
/// of several pixels at a scale.
bool hasPixelOutlines();
/// Cuts the window, which has no frame, to such a one. It has no mask from then on, as that would clip what
/// is painted.
void cutToPixels(QWidget& window, const QRegion& outline);

} // namespace morvane
