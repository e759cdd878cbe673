#pragma once

#include "core/keyed_collection.h"

namespace morvane {

class Session;

/// One recolouring of the simulator's ground textures.
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
};

inline QString keyOf(const clsTextureSet& record) {
    return QString::number(record.TsID);
}
inline const QString& nameOf(const clsTextureSet& record) {
    return record.TextureSet;
}

/// The rows of `TEXTURE_SETS`. Its operations that reach the store give false after the message of a failure.
class clsTextureSets : public KeyedCollection<clsTextureSet> {
public:
    explicit clsTextureSets(Session& session) : session_(session) {}
    /// A fresh, loaded collection in the session's rows.
    static bool reload(Session& session);

    const KeyedCollection<clsTextureSet>& GetTextureSet() const { return *this; }
    std::int16_t findIndex(const QString& name) const { return findName(name); }
    bool getTextureSets();
    /// An unknown key raises before the row is touched.
    bool RemoveItem(const QString& key, std::int16_t id);
    bool UpdateTextureSet(clsTextureSet& record);
    /// Writes all rows: the set of that name is installed, no other is.
    bool markInstalled(const QString& name);

private:
    Session& session_;
};

/// Runs the statements; it fills the session's collection, whichever one asked.
class clsTextureSetData {
public:
    explicit clsTextureSetData(Session& session) : session_(session) {}

    bool getTextureSetData();
    bool deleteTexture(std::int16_t id);
    /// A new record gets its key and its final name ("12-Storm") and joins the collection.
    bool Save(clsTextureSet& record);

private:
    Session& session_;
};

} // namespace morvane
