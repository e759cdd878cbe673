#pragma once

#include <QImage>

namespace morvane::skin {

/// The program's start picture, 700 x 500: one landscape in five weathers, clear to overcast from left to
/// right, above a dark band with the covers, the name and a line. What lies below row 396 and right of column
/// 360 stays free for the live label and bar.
QImage drawStartPicture();

} // namespace morvane::skin
