#include "night/night_sets.h"

#include "sets/set_collections.h"

namespace morvane {

clsNightTextureSets& loadedNightSets(Session& session) {
    return loadedCollection(session, session.rows<clsNightTextureSets>());
}

bool refreshNightSets(Session& session) {
    return clsNightTextureSets::reload(session);
}

std::shared_ptr<const clsNightTextureSet> findNightSet(Session& session, const QString& name) {
    return findTrimmedName(loadedNightSets(session), name);
}

FilePath nightSetFolder(const Session& session, const QString& name) {
    return (session.AppPath / u"Night Texture Sets").child(name);
}

} // namespace morvane
