#pragma once

#include <QImage>
#include <vector>

namespace morvane::skin {

/// An icon file (.ico) of square pictures with alpha, each up to 256 pixels a side and stored as a 32-bit
/// bitmap.
QByteArray iconFile(const std::vector<QImage>& pictures);

/// A cursor file (.cur) of one such picture; `hotSpot` is the pixel that points.
QByteArray cursorFile(const QImage& picture, QPoint hotSpot);

} // namespace morvane::skin
