#pragma once

#include "skin_pictograms.h"

#include <QImage>
#include <QString>
#include <span>

namespace morvane::skin {

/// The four kinds of keys; each has a size of its own.
enum class KeyFamily { large, medium, standard, small };

/// One key image of the program: its file name without ending, and what is on it. A name is drawn for the
/// one family that uses it.
struct KeyImage {
    QStringView name;
    KeyFamily family;
    Pictogram pictogram;
};

std::span<const KeyImage> keyImages();

/// The size of one frame, in logical pixels.
QSize keySize(KeyFamily family);

/// The strip of a key: its frames normal, hover, pressed and disabled below each other without a gap, with
/// key colour in the four corners of each. It holds no words, as one image serves several places.
QImage drawKeyStrip(const KeyImage& image, int scale);

} // namespace morvane::skin
