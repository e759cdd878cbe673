#pragma once

#include "sets/stored_rows.h"

namespace morvane {

/// One recolouring of the simulator's ground textures: a row of `TEXTURE_SETS`.
struct clsTextureSet {
    bool Installed = false; ///< its files stand in the simulator now
    bool IsNew = false;     ///< has no row yet
    std::int16_t TsID = 0;
    /// Saturation, red, green, blue, brightness, contrast, joined by ":", with the user's decimal separator.
    QString ColorSettings;
    QString TextureSet; ///< name of the set and of its folder
    QString Actvated;   ///< "True" or "False": the set's bitmaps exist. The spelling has always been this one
    QString Description;
    QString CloudCover; ///< "Sky Clear", "Mostly Clear", "Partly Cloudy", "Mostly Cloudy" or "Overcast"
    bool IsDutch = false;

    static const StoredTable<clsTextureSet>& table();
};

using clsTextureSets = StoredRows<clsTextureSet>;

} // namespace morvane
