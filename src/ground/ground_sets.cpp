#include "ground/ground_sets.h"

#include "core/set_collections.h"

namespace morvane {

clsTextureSets& loadedGroundSets(Session& session) {
    return loadedCollection(session, session.gTextureSets);
}

bool refreshGroundSets(Session& session) {
    return clsTextureSets::reload(session);
}

std::shared_ptr<const clsTextureSet> findGroundSet(Session& session, const QString& name) {
    return findTrimmedName(loadedGroundSets(session), name);
}

} // namespace morvane
