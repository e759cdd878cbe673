#pragma once

#include "sets/stored_rows.h"

namespace morvane {

/// One recolouring of the simulator's light-map textures, those of the ground at night: a row of
/// `NIGHT_TEXTURE_SETS`. Fields as those of the ground.
struct clsNightTextureSet {
    bool Installed = false;
    bool IsNew = false;
    std::int16_t NtsID = 0;
    QString ColorSettings;
    QString TextureSet;
    QString Actvated;
    QString Description;

    static const StoredTable<clsNightTextureSet>& table();
};

using clsNightTextureSets = StoredRows<clsNightTextureSet>;

} // namespace morvane
