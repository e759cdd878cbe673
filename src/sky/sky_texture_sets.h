#pragma once

#include "core/keyed_collection.h"

namespace morvane {

class Session;

/// Head of a recolouring of the simulator's sky textures; its colours are in its sub sets.
struct clsSkyTextureSet {
    QString TextureSetGroup; ///< the base set that it was made from, such as "Pro Sky"
    QString Description;
    QString Activated;  ///< "True" or "False"
    QString CloudCover; ///< as for ground sets
    bool IsNew = false;
    bool Installed = false; ///< its files stand in the simulator now
    std::int16_t StsID = 0;
    QString SkyTextureSet; ///< name of the set and of its folder
};

inline QString keyOf(const clsSkyTextureSet& record) {
    return QString::number(record.StsID);
}
inline const QString& nameOf(const clsSkyTextureSet& record) {
    return record.SkyTextureSet;
}

/// The rows of `SKY_TEXTURE_SETS`. Its operations that reach the store give false after the message of a
/// failure.
class clsSkyTextureSets : public KeyedCollection<clsSkyTextureSet> {
public:
    explicit clsSkyTextureSets(Session& session) : session_(session) {}
    /// A fresh, loaded collection in the session's rows.
    static bool reload(Session& session);

    const KeyedCollection<clsSkyTextureSet>& GetSkyTextureSet() const { return *this; }
    std::int16_t findIndex(const QString& name) const { return findName(name); }
    bool getSkyTextureSets();
    /// Takes the set's sub sets with it. An unknown key raises before a row is touched.
    bool RemoveItem(const QString& key);
    bool UpdateSkyTextureSet(clsSkyTextureSet& record);
    /// Writes all rows: the set of that name is installed, no other is.
    bool markInstalled(const QString& name);

private:
    Session& session_;
};

/// Runs the statements; it fills the session's collection, whichever one asked.
class clsSkyTextureSetData {
public:
    explicit clsSkyTextureSetData(Session& session) : session_(session) {}

    bool getSkyTextureSetData();
    bool deleteSkyTexture(std::int16_t id);
    /// A new record gets its key and its final name ("12-Storm") and joins the collection.
    bool Save(clsSkyTextureSet& record);
    std::int16_t getNextID();

private:
    Session& session_;
};

} // namespace morvane
