#pragma once

#include "imaging/paper_palette.h"

#include <QImage>
#include <QString>
#include <span>

namespace morvane::skin {

/// The background picture of one or more windows, with key colour outside their outline.
struct WindowPicture {
    /// The picture's file without ending.
    QStringView name;
    /// The region file that is scanned from it; none for the other windows of the same outline.
    QStringView regionFile;
    QSize size;
};

/// A dialog's, whose paper there is in both palettes; the windows with pages have none.
bool hasPaper(const WindowPicture& window);

std::span<const WindowPicture> windowPictures();

/// The picture of that name with paper of that palette; a name that is not in the list raises "Invalid
/// procedure call".
QImage drawWindow(QStringView name, int scale, PaperPalette palette);

} // namespace morvane::skin
