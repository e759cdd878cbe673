#pragma once

#include "core/keyed_collection.h"

namespace morvane {

class Session;

/// One body of files that the base install offers.
struct clsConfig {
    std::int16_t ConfigID = 0;
    QString ConfigName;      ///< title in the list, and the key of row lookups
    QString ConfigMVFolder;  ///< below `AppPath`
    QString ConfigImageName; ///< preview below `AppPath\Media`
    QString ConfigFSFolder;  ///< below `FSPath`
    QString ConfigDescription;
    bool ConfigInstalled = false;
};

inline QString keyOf(const clsConfig& record) {
    return QString::number(record.ConfigID);
}
inline const QString& nameOf(const clsConfig& record) {
    return record.ConfigName;
}

/// The rows of `MV_CONFIG`: the bodies of files of the base install. Operations that reach the store give
/// false after the message of a failure.
class clsConfigs : public KeyedCollection<clsConfig> {
public:
    explicit clsConfigs(Session& session) : session_(session) {}
    /// A fresh, loaded collection in the session's rows.
    static bool reload(Session& session);

    bool getConfigs();
    /// Rows are only ever changed, found by their title; none is added.
    bool UpdateConfig(const clsConfig& record);

private:
    Session& session_;
};

/// Runs the statements; it fills the session's collection, whichever one asked.
class clsConfigData {
public:
    explicit clsConfigData(Session& session) : session_(session) {}

    bool getConfigData();
    bool Save(const clsConfig& record);

private:
    Session& session_;
};

} // namespace morvane
