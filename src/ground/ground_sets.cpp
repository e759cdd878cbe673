#include "ground/ground_sets.h"

#include "sets/set_collections.h"

namespace morvane {

clsTextureSets& loadedGroundSets(Session& session) {
    return loadedCollection(session, session.rows<clsTextureSets>());
}

bool refreshGroundSets(Session& session) {
    return clsTextureSets::reload(session);
}

std::shared_ptr<const clsTextureSet> findGroundSet(Session& session, const QString& name) {
    return findTrimmedName(loadedGroundSets(session), name);
}

std::vector<ActivatedSet> activatedSets(const clsTextureSets& sets) {
    return activatedSets(sets, &clsTextureSet::Actvated);
}

} // namespace morvane
