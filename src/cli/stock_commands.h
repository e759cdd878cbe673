#pragma once

#include "cli/commands.h"

namespace morvane {

/// Base images from the simulator's textures, or from those of the folder behind "--from". What came, by
/// category, goes to stdout.
bool stockImport(CommandContext& context);
/// The base images of before the first import.
bool stockRestore(CommandContext& context);

} // namespace morvane
