#pragma once

#include "core/keyed_collection.h"

namespace morvane {

class Session;

/// One recolouring of the simulator's light-map textures, those of the ground at night.
struct clsNightTextureSet {
    bool Installed = false; ///< its files stand in the simulator now
    bool IsNew = false;     ///< has no row yet
    std::int16_t NtsID = 0;
    /// Saturation, red, green, blue, brightness, contrast, joined by ":", with the user's decimal separator.
    QString ColorSettings;
    QString TextureSet; ///< name of the set and of its folder
    QString Actvated;   ///< "True" or "False": the set's bitmaps exist. The spelling has always been this one
    QString Description;
};

inline QString keyOf(const clsNightTextureSet& record) {
    return QString::number(record.NtsID);
}
inline const QString& nameOf(const clsNightTextureSet& record) {
    return record.TextureSet;
}

/// The rows of `NIGHT_TEXTURE_SETS`. Its operations that reach the store give false after the message of a
/// failure.
class clsNightTextureSets : public KeyedCollection<clsNightTextureSet> {
public:
    explicit clsNightTextureSets(Session& session) : session_(session) {}
    /// A fresh, loaded collection in the session's rows.
    static bool reload(Session& session);

    const KeyedCollection<clsNightTextureSet>& GetNightTextureSet() const { return *this; }
    std::int16_t findIndex(const QString& name) const { return findName(name); }
    bool getNightTextureSets();
    /// An unknown key raises before the row is touched.
    bool RemoveItem(const QString& key, std::int16_t id);
    bool UpdateNightTextureSet(clsNightTextureSet& record);
    /// Writes all rows: the set of that name is installed, no other is.
    bool markInstalled(const QString& name);

private:
    Session& session_;
};

/// Runs the statements; it fills the session's collection, whichever one asked.
class clsNightTextureSetData {
public:
    explicit clsNightTextureSetData(Session& session) : session_(session) {}

    bool getNightTextureSetData();
    bool deleteNightTexture(std::int16_t id);
    /// A new record gets its key and its final name ("12-Storm") and joins the collection.
    bool Save(clsNightTextureSet& record);

private:
    Session& session_;
};

} // namespace morvane
