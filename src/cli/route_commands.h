#pragma once

#include "cli/commands.h"

namespace morvane {

// The commands on the weather of a route, as they stand in the command table.

/// Options by name, in any order; the reports found as one JSON array, in order of their codes.
bool metarFind(CommandContext& context);
/// One object: the plan's heading, its waypoints with their cloud classes, their average, its class and word.
bool showPlan(CommandContext& context);

} // namespace morvane
