#pragma once

#include "sets/stored_rows.h"

namespace morvane {

/// Head of a recolouring of the simulator's sky textures, a row of `SKY_TEXTURE_SETS`; its colours are in its
/// sub sets, which go with it.
struct clsSkyTextureSet {
    QString TextureSetGroup; ///< the base set that it was made from, such as "Pro Sky"
    QString Description;
    QString Activated;  ///< "True" or "False"
    QString CloudCover; ///< as for ground sets
    bool IsNew = false;
    bool Installed = false; ///< its files stand in the simulator now
    std::int16_t StsID = 0;
    QString SkyTextureSet; ///< name of the set and of its folder

    static const StoredTable<clsSkyTextureSet>& table();
};

using clsSkyTextureSets = StoredRows<clsSkyTextureSet>;

} // namespace morvane
