#pragma once

#include "core/session.h"
#include "weather/airport_table.h"

#include <vector>

namespace morvane {

/// Adds the decoded reports of the sample cycles to the session's store, one row a station, with the
/// station's position: the airport's, else the station list's.
void addSampleReports(Session& session, const FilePath& data, const std::vector<AirportRow>& airports);

/// Coordinates of a station list ("70-56N", "161-09-07W") as signed decimal degrees with ".", up to six
/// decimals; empty for anything else.
QString decimalDegrees(const QString& coordinate);

} // namespace morvane
