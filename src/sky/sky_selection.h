#pragma once

#include "core/session.h"

namespace morvane {

/// Puts the set behind a list key ("Key:" and the StsID) into `skyTextureGroups`, from its sub set for that
/// time of day, and notes name, base set and description in the session's selection. Groups without a colour
/// text, and all of them without such a sub set, are zero. A screen repaints its sample afterwards: the file
/// is `skySampleFile`. False after a failure was told.
bool loadSkySubSet(Session& session, const QString& listKey, const QString& timeOfDay);

/// Fills `skyTextureGroups` from the set's sub set for that time of day, as above. The set's sub sets become
/// `gSkyTextureSubSets`.
void loadSkyTextureGroups(Session& session, std::int16_t setKey, const QString& timeOfDay);

} // namespace morvane
