#pragma once

#include "core/file_path.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace morvane {

class Session;

/// One waypoint and the weather over it. Coordinates are in the simulator's form, "N51* 28.65'".
struct Waypoint {
    QString name = {}, type = {}, latitude = {}, longitude = {}, airway = {};
    std::int16_t cloudClass = 0; ///< of its own report or its nearest station's; 0 when there is none
};

/// A flight plan as it was read, without weather.
struct FlightPlan {
    QString departure, destination, altitude;
    std::vector<Waypoint> waypoints; ///< in file order
};

/// A plan over the stored weather.
struct PlanWeather {
    std::vector<Waypoint> waypoints;
    double average = 0;          ///< of the waypoints' icons, 0 without a waypoint
    std::int16_t coverClass = 0; ///< 1 to 5, 0 without a waypoint
};

/// Names of the plans in the folder (see `userFlightsFolder`); none without a folder.
QStringList flightPlanNames(Session& session, const FilePath& folder);

/// The plan of a file's contents: the simulator's text, "key=value" a line, the XML form of its later
/// versions or Little Navmap's. Nothing for XML that is neither; what is no plan at all has no waypoints.
/// Raises for XML that is damaged and for a line of text beyond all measure.
std::optional<FlightPlan> parseFlightPlan(const QByteArray& contents);
/// Reads a plan. Nothing, after a message, for XML that is none. Raises when the file cannot be read, is
/// damaged or is far too large for a plan.
std::optional<FlightPlan> readFlightPlan(Session& session, const FilePath& file);

/// The waypoint of a text line's value, in one of its layouts, without weather: texts for fields that are
/// missing are empty.
Waypoint parseWaypoint(const QString& value);
/// "a" is "Airport", "v" "VOR", "i" "Intersection/Fix", "n" "NDB", in either case; empty for anything else.
QString getWaypointType(const QString& letter);
/// The icon that stands for a class in a plan: classes 0 and 6 are drawn, and counted, as clear. That is not
/// what Fly Now counts for them (3), and is wanted.
std::int16_t getCloudIcon(std::int16_t cloudClass);

/// Looks up the weather of each waypoint. `progress` hears of each, in hundredths of the whole.
PlanWeather processFlightPlan(
    Session& session, const FlightPlan& plan, const std::function<void(double)>& progress = [](double) {});

} // namespace morvane
