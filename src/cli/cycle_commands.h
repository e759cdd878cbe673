#pragma once

#include "cli/commands.h"

namespace morvane {

// The commands on cycles and the table of decoded reports, as they stand in the command table.

/// Stores the reports of a file: "plain" (when nothing is said) and "noaa" as a cycle of the server's,
/// "asv6" as an export of Active Sky's.
bool metarImport(CommandContext& context);
/// Fetches the last hour's cycle from the weather server and stores it.
bool metarDownload(CommandContext& context);
/// Every row of the table, one JSON object a line, fields by their columns.
bool metarRows(CommandContext& context);

} // namespace morvane
