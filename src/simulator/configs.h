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

/// The rows of `MV_CONFIG`, and the four switches of `TEXTURE_SWITCH`. Operations that reach the store give
/// false after the message of a failure; so does a switch that cannot be read.
class clsConfigs : public KeyedCollection<clsConfig> {
public:
    explicit clsConfigs(Session& session) : session_(session) {}
    /// A fresh, loaded collection in the session's rows.
    static bool reload(Session& session);

    const KeyedCollection<clsConfig>& GetConfig() const { return *this; }
    std::int16_t findIndex(double number) const { return findNumber(number); }
    bool getConfigs();
    /// Rows are only ever changed, found by their title; none is added.
    bool UpdateConfig(const clsConfig& record);

    bool UpdateDutch(bool value);
    bool GetDutchVal();
    bool UpdateTropical(bool value);
    bool GetTropicalVal();
    bool UpdateHalo(bool value);
    bool GetHaloVal();
    bool UpdateFastExit(bool value);
    bool GetFastExitVal();

private:
    Session& session_;
};

/// Runs the statements; it fills the session's collection, whichever one asked.
class clsConfigData {
public:
    explicit clsConfigData(Session& session) : session_(session) {}

    bool getConfigData();
    bool Save(const clsConfig& record);

    bool UpdateDutchConfig(bool value);
    bool GetDutchVal();
    bool UpdateTropicalConfig(bool value);
    bool GetTropicalVal();
    bool UpdateHaloConfig(bool value);
    bool GetHaloVal();
    bool UpdateFastExitConfig(bool value);
    bool GetFastExitVal();

private:
    bool readSwitch(const QString& column);
    bool writeSwitch(const QString& column, bool value);

    Session& session_;
};

} // namespace morvane
