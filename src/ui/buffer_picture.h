#pragma once

#include <QImage>

namespace morvane {

class cDIBSection;

/// The pixels of a buffer for the screen; a null picture for an empty one.
QImage pictureOf(const cDIBSection& buffer);

} // namespace morvane
