#pragma once

#include "sets/shared_set.h"
#include "sky/sky_sets.h"

namespace morvane {

/// What the sky passes on of a set: its base set and the ten colour texts of its day.
struct SkySharing {
    static SharedSet share(Session& session, const clsSkyTextureSet& set);
    static Reported save(Session& session, clsSkyTextureSet set, const SharedSet& shared);
};

} // namespace morvane
