#pragma once

#include "core/session.h"

namespace morvane {

/// Whether this start was the first one that came to its end.
struct FirstRun {
    bool isDone = false;
};

/// What is done once, at the first start after an install, which leaves "FirstTime" as "True" in the
/// registry: the simulator's own splash is kept for the option that brings it back, the delivered flights go
/// into its folder, and its textures are backed up. Any other value, or none, means that it was done. As long
/// as the disk or the store refuses the backup the value stays, and the next start goes on with it.
void doFirstRun(Session& session);

} // namespace morvane
