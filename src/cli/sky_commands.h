#pragma once

#include "cli/commands.h"

namespace morvane {

// The commands on sky sets, as they stand in the command table.
bool skyCreate(CommandContext& context);
/// One object: the head row as "set", the row of its colours as "subSet".
bool skyShow(CommandContext& context);
/// Lays the ten groups of a file on a picture: a JSON array of ten colour texts, group 1 first.
bool recolourSky(CommandContext& context);

} // namespace morvane
