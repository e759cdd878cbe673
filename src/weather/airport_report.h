#pragma once

#include "weather/airport_data.h"
#include "weather/weather_report.h"

namespace morvane {

class Session;

/// The airport's own report or, without one, its nearest neighbour's, which then reads as the airport's own.
/// `icao` is the airport's code, trimmed. Raises where there is none.
clsWxFinder reportOfAirport(const Session& session, const Airport& airport, const QString& icao);

/// The report of an airport from the stored cycle, or, where it has none of its own, that of the nearest
/// station under the airport's code. The end of the flight that is being chosen takes it, and unless
/// `InhibitWeatherReports` the decoded report is shown. Nothing after the message that there is none; the
/// session is then as it was.
std::optional<QString> getMetar(Session& session, const Airport& airport);

/// What choosing an airport from a list does: its report as by `getMetar`, and its name, code and city into
/// the end of the flight that is being chosen. Without a report nothing is taken: name and report never part.
bool chooseAirport(Session& session, const Airport& airport);

} // namespace morvane
