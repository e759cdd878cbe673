#pragma once

#include "core/session.h"
#include "ground/texture_sets.h"
#include "sets/set_choice.h"

namespace morvane {

/// The session's ground sets, loaded when they are not there yet. Raises "The database cannot be used" when
/// they cannot be had at all.
clsTextureSets& loadedGroundSets(Session& session);

/// The same, read anew: records in memory stay as they were loaded, so whoever decides by a flag or writes
/// rows back asks for fresh ones. False after the message of a failure.
bool refreshGroundSets(Session& session);

/// The record of the set of that name, both trimmed; nothing when there is none.
std::shared_ptr<const clsTextureSet> findGroundSet(Session& session, const QString& name);

/// Those whose activation is exactly "True", in the order of the collection.
std::vector<ActivatedSet> activatedSets(const clsTextureSets& sets);

} // namespace morvane
