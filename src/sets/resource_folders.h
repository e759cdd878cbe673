#pragma once

#include "sets/stored_rows.h"

namespace morvane {

/// Where one category of textures lies: in the install, in a ground set, in the simulator. A row of
/// `RESOURCE_FOLDERS`.
struct clsResourceFolder {
    bool IsNew = false;
    std::int16_t resourceID = 0;
    QString ResourceName;     ///< the category, the key of all lookups
    QString ResourceMVFolder; ///< below `AppPath\Resources`
    QString ResourceFSFolder; ///< below `FSPath`
    QString ResourceTSFolder; ///< below the folder of a set

    static const StoredTable<clsResourceFolder>& table();
};

using clsResourceFolders = StoredRows<clsResourceFolder>;

/// All of them, read once. Behind a read that failed, which is told, it raises ErrorCode::interrupted, and
/// the next call reads anew: a set that is made or a stock that is taken over without them is one without
/// files.
const clsResourceFolders& resourceFolders(Session& session);

} // namespace morvane
