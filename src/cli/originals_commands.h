#pragma once

#include "cli/commands.h"

namespace morvane {

/// Every kept file of the simulator.
bool originalsList(CommandContext& context);
/// Puts them all back. What became of them goes to stdout, with the names of those that were left.
bool originalsRestore(CommandContext& context);

} // namespace morvane
