#include "ground/ground_sets.h"

#include "core/numbers.h"

namespace morvane {

clsTextureSets& loadedGroundSets(Session& session) {
    if (!session.gTextureSets) clsTextureSets::reload(session);
    return *session.gTextureSets;
}

bool refreshGroundSets(Session& session) {
    return clsTextureSets::reload(session);
}

std::shared_ptr<const clsTextureSet> findGroundSet(Session& session, const QString& name) {
    for (const auto& set : loadedGroundSets(session))
        if (trimmedBlanks(set->TextureSet) == trimmedBlanks(name)) return set;
    return nullptr;
}

} // namespace morvane
