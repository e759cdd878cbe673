#include "sky/sky_sets.h"

#include "sets/set_collections.h"

namespace morvane {

clsSkyTextureSets& loadedSkySets(Session& session) {
    return loadedCollection(session, session.rows<clsSkyTextureSets>());
}

bool refreshSkySets(Session& session) {
    return clsSkyTextureSets::reload(session);
}

std::shared_ptr<const clsSkyTextureSet> findSkySet(Session& session, const QString& name) {
    return findTrimmedName(loadedSkySets(session), name);
}

std::vector<ActivatedSet> activatedSets(const clsSkyTextureSets& sets) {
    return activatedSets(sets, &clsSkyTextureSet::Activated);
}

FilePath skySetFolder(const Session& session, const QString& name) {
    return (session.AppPath / u"Sky Texture Sets").child(name);
}

} // namespace morvane
