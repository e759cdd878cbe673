#pragma once

#include "weather/airport_data.h"

namespace morvane {

class Session;

/// The report of an airport from the stored cycle, or, where it has none of its own, that of the nearest
/// station under the airport's code. The end of the flight that is being chosen takes it, and unless
/// `InhibitWeatherReports` the decoded report is shown. Nothing after the message that there is none; the
/// session is then as it was.
std::optional<QString> getMetar(Session& session, const Airport& airport);

/// What choosing an airport from a list does: its report as by `getMetar`, and its name, code and city into
/// the end of the flight that is being chosen. Without a report nothing is taken: name and report never part.
bool chooseAirport(Session& session, const Airport& airport);

} // namespace morvane
