#pragma once

#include "cli/commands.h"

namespace morvane {

/// A favourite of that name from six whole slider values, "S:R:G:B:BR:C", each -100 to 100.
bool nightFavourite(CommandContext& context);

} // namespace morvane
