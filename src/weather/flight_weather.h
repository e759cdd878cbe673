#pragma once

#include "core/file_path.h"
#include "weather/weather_report.h"

#include <optional>
#include <vector>

namespace morvane {

class Session;

/// The weather of a flight that was ordered in one line, from the stored reports or from one that was given.
struct FlightWeather {
    std::int16_t cloudClass = 0;           ///< 1 to 6
    std::vector<clsWxFinder> reports = {}; ///< those of its ends; none for a plan
    QString route = {};                    ///< of a plan: from where to where, and how many waypoints
};

// Each raises, with one line that says why there is no such weather: an airport that nobody knows, no report,
// or none that tells of clouds.

/// Of the departure and, unless its code is empty, the destination, by their own reports or their
/// neighbours'.
FlightWeather weatherOfAirports(const Session& session, const QString& departure, const QString& destination);
/// Along a plan. Nothing after the message that its form is not known.
std::optional<FlightWeather> weatherOfPlan(Session& session, const FilePath& file);
/// Of a report as it was typed. Nothing after the message that it tells of no clouds.
std::optional<FlightWeather> weatherOfReport(Session& session, const QString& report);

} // namespace morvane
