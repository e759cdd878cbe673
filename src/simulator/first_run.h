#pragma once

#include "core/session.h"

namespace morvane {

/// What is done once, at the first start after an install, which leaves "FirstTime" as "True" in the
/// registry: the delivered flights go into the simulator's folder, its own splash is kept for the option that
/// brings it back, and its textures are backed up. Any other value, or none, means that it was done.
void doFirstRun(Session& session);

} // namespace morvane
