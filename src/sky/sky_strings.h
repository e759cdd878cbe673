#pragma once

#include "core/session.h"

namespace morvane {

/// The ten colour texts of a set in the order of the groups.
using SkyStrings = std::array<QString, 10>;

/// Draws a set's colours for a cloud cover (1 to 5) and a base set by the generator's rules, into the texts
/// and into `skyTextureGroups` together. Groups that belong together share a draw. A base set without rules
/// leaves texts of the region alone. Any other cloud cover raises "Subscript out of range".
SkyStrings drawSkyStrings(Session& session, int cloudIndex, const QString& baseSet);

} // namespace morvane
