#pragma once

#include "core/session.h"
#include "sets/set_choice.h"
#include "sky/sky_texture_sets.h"

namespace morvane {

/// The session's sky sets, loaded when they are not there yet. Raises "The database cannot be used" when they
/// cannot be had at all.
clsSkyTextureSets& loadedSkySets(Session& session);

/// The same, read anew: records in memory stay as they were loaded, so whoever decides by a flag or writes
/// rows back asks for fresh ones. False after the message of a failure.
bool refreshSkySets(Session& session);

/// The record of the set of that name, both trimmed; nothing when there is none.
std::shared_ptr<const clsSkyTextureSet> findSkySet(Session& session, const QString& name);

/// Those whose activation is exactly "True", in the order of the collection.
std::vector<ActivatedSet> activatedSets(const clsSkyTextureSets& sets);

/// The folder of the named sky set. Raises "Path not found" for a name that is no single folder name.
FilePath skySetFolder(const Session& session, const QString& name);

} // namespace morvane
