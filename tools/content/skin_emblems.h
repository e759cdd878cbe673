#pragma once

#include <QImage>

namespace morvane::skin {

/// The program's icon with alpha: the aircraft mark on an artificial horizon.
QImage drawProgramIcon(int side);

/// The pointer over keys, 32 x 32 with alpha; it points with `handHotSpot`.
QImage drawHandCursor();
constexpr QPoint handHotSpot(11, 3);

/// The pointer while a window is dragged, 32 x 32 with alpha; it points with its middle.
QImage drawMoveCursor();
constexpr QPoint moveHotSpot(16, 16);

/// The weather program's picture on screens that speak with it, 27 x 27: a cloud on the sky.
QImage drawWeatherProgramPicture();

/// The same for the reports of the maker's own server: a globe.
QImage drawReportServerPicture();

} // namespace morvane::skin
