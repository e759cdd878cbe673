#pragma once

#include "core/reported.h"
#include "sets/stored_rows.h"

namespace morvane {

/// One body of files that the base install offers: a row of `MV_CONFIG`. Rows are only ever changed; none is
/// added.
struct clsConfig {
    std::int16_t ConfigID = 0;
    QString ConfigName;      ///< title in the list, and the key of row lookups
    QString ConfigMVFolder;  ///< below `AppPath`
    QString ConfigImageName; ///< preview below `AppPath\Media`
    QString ConfigFSFolder;  ///< below `FSPath`
    QString ConfigDescription;
    bool ConfigInstalled = false;

    static const StoredTable<clsConfig>& table();
};

using clsConfigs = StoredRows<clsConfig>;

/// Writes the row of that title; the copy in memory stays as it is until the next load.
Reported writeConfig(Session& session, const clsConfig& record);

} // namespace morvane
