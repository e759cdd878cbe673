#pragma once

#include "base_image_list.h"

#include <QImage>
#include <span>

namespace morvane::skin {

/// A picture of what one base install brings, 230 x 140.
struct PreviewPicture {
    /// The file with its ending, as the delivered configurations name it.
    QStringView fileName;
    /// The folder of the stock and the kind of land from which it shows the first image.
    QStringView resourceFolder;
    LandKind kind;
    bool isNight = false;
};

std::span<const PreviewPicture> previewPictures();

QImage drawPreview(const PreviewPicture& preview);

} // namespace morvane::skin
