#pragma once

namespace morvane {

class Session;

/// Makes the Dutch textures of every ground set but "Default" in the set's colours, from the catalogue's
/// category of the upgrade, and marks the sets. What fails is told and costs the set its textures only.
void createDutchForAllSets(Session& session);

} // namespace morvane
