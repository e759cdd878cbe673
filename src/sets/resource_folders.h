#pragma once

#include "core/keyed_collection.h"

namespace morvane {

class Session;

/// Where one category of textures lies: in the install, in a ground set, in the simulator.
struct clsResourceFolder {
    bool IsNew = false;
    std::int16_t resourceID = 0;
    QString ResourceName;     ///< the category, the key of all lookups
    QString ResourceMVFolder; ///< below `AppPath\Resources`
    QString ResourceFSFolder; ///< below `FSPath`
    QString ResourceTSFolder; ///< below the folder of a set
};

inline QString keyOf(const clsResourceFolder& record) {
    return QString::number(record.resourceID);
}
inline const QString& nameOf(const clsResourceFolder& record) {
    return record.ResourceName;
}

/// The rows of `RESOURCE_FOLDERS`. Its operations that reach the store give false after the message of a
/// failure.
class clsResourceFolders : public KeyedCollection<clsResourceFolder> {
public:
    explicit clsResourceFolders(Session& session) : session_(session) {}
    /// A fresh, loaded collection in the session's rows.
    static bool reload(Session& session);

    bool getResources();
    /// An unknown key raises before the row is touched.
    bool RemoveItem(const QString& key, std::int16_t id);
    bool UpdateResources(clsResourceFolder& record);

private:
    Session& session_;
};

/// Runs the statements; it fills the session's collection, whichever one asked.
class clsResourceFolderData {
public:
    explicit clsResourceFolderData(Session& session) : session_(session) {}

    bool getResourceData();
    bool deleteResource(std::int16_t id);
    /// A new record gets its key and joins the collection.
    bool Save(clsResourceFolder& record);
    std::int16_t getNextID();

private:
    Session& session_;
};

} // namespace morvane
