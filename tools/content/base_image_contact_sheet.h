#pragma once

#include "imaging/picture.h"

#include <QImage>
#include <QStringList>
#include <vector>

namespace morvane {

/// A row of pictures to be looked at side by side.
struct ContactRow {
    QString caption;
    std::vector<Picture> pictures;
};

/// A sheet with a caption before each row and a title above each column, each picture scaled to 144 pixels a
/// side. An empty picture leaves its place free. Needs no font and no display.
QImage contactSheet(const std::vector<ContactRow>& rows, const QStringList& columnTitles);

/// The picture as an image of the same size, right side up.
QImage toImage(const Picture& picture);

} // namespace morvane
