#pragma once

#include "core/row_set.h"
#include "weather/weather_report.h"

#include <optional>

namespace morvane {

class Session;

// The rows of `DECODED_METAR`. Each raises what the store raises.

/// The row of the station, at its end without one. An empty code is that of the lines that are no reports.
RowSet stationRow(const Session& session, const QString& icao);
/// The station's report; nothing without one. An empty code has none.
std::optional<clsWxFinder> findReport(const Session& session, const QString& icao);
/// The report of the row at hand.
clsWxFinder reportOf(const RowSet& row);
/// The directory of airports knows where the station is.
bool hasAirportPlace(const Session& session, const QString& icao);
/// Writes over the station's row or adds one; other stations keep theirs, however old. A place that is not
/// known leaves what the row has; a new row then takes its airport's.
void storeReport(const Session& session, const clsWxFinder& report, const StationPlace& place = {});

} // namespace morvane
