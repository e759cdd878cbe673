#pragma once

#include "cli/commands.h"

namespace morvane {

// The commands on airports and their stored reports, as they stand in the command table.

/// The decoded report of a station or an airport, line by line.
bool metarShow(CommandContext& context);
/// The airports whose code begins with the argument: a JSON array of at most 100.
bool airportFind(CommandContext& context);
/// The station with a stored report nearest to a latitude and a longitude in signed decimal degrees.
bool stationNearest(CommandContext& context);

} // namespace morvane
