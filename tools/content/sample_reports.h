#pragma once

#include "core/session.h"
#include "weather/airport_rows.h"
#include "weather/station_list.h"

#include <vector>

namespace morvane {

/// Adds the decoded reports of the sample cycles to the session's store, one row a station, with the
/// station's position: the airport's, else the station list's. Some forty military fields, buoys and private
/// stations are in neither; their rows have none.
void addSampleReports(Session& session, const FilePath& data, const std::vector<AirportRow>& airports,
                      const StationList& stations);

} // namespace morvane
