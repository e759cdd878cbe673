#pragma once

#include "imaging/picture.h"

#include <QStringList>

namespace morvane {

/// The folders of sky maps below "Resources\Sky": the seven base sets, then "Sunrise" and "Sunset".
const QStringList& skyFolders();

/// The file names of a folder's maps, in the order of the day. All base sets have the same ones,
/// "sky_afternoon_3.bmp" among them; those of "Sunrise" and "Sunset" are their own, so that a set which holds
/// all three keeps them apart.
QStringList skyMapNames(const QString& folder);

/// The map of that name's place in the list, 32 by 32 pixels. It is no picture of a sky, each region colours
/// one thing of the scene: the lowest two rows the low and the high horizon, the highest row the shadows of
/// ground, clouds and water, everything between the sky from the horizon up. A folder that is none raises.
Picture drawSkyMap(const QString& folder, int index);

} // namespace morvane
