#include "weather/flight_plan.h"

#include "core/bounded_reading.h"
#include "core/error.h"
#include "core/numbers.h"
#include "core/opened_file.h"
#include "core/reading_limits.h"
#include "core/session.h"
#include "core/text_decoding.h"
#include "weather/coordinates.h"
#include "weather/cover_choice.h"
#include "weather/nearest_station.h"
#include "weather/xml_flight_plan.h"

namespace morvane {

namespace {

/// Positions of the fields in a waypoint's value.
struct WaypointLayout {
    int name, type, latitude, longitude, airway;
};

constexpr WaypointLayout nameFirst{0, 1, 2, 3, 5};
/// A region, which can be empty, and two more fields stand in front.
constexpr WaypointLayout regionFirst{3, 4, 5, 6, 8};

WaypointLayout layoutOf(const QStringList& fields) {
    const bool hasRegion = fields[0].size() == 2 && fields.value(1).size() != 1;
    return fields[0].isEmpty() || hasRegion ? regionFirst : nameFirst;
}

QString valueOf(const QString& line) {
    const qsizetype sign = line.indexOf(u'=');
    return sign < 0 ? QString() : line.mid(sign + 1);
}

void readLine(const QString& line, FlightPlan& plan) {
    const QString trimmed = trimmedBlanks(line);
    if (trimmed.startsWith(u"departure_name")) plan.departure = valueOf(trimmed);
    if (trimmed.startsWith(u"destination_name")) plan.destination = valueOf(trimmed);
    if (trimmed.startsWith(u"cruising_altitude")) plan.altitude = valueOf(trimmed);
    // An indented waypoint is left out, unlike the keys above: wanted.
    if (line.startsWith(u"waypoint")) plan.waypoints.push_back(parseWaypoint(valueOf(line)));
}

/// The class of the waypoint's own report or else of its nearest station's. A position that cannot be read
/// has no nearest station.
std::int16_t cloudClassAt(const StationIndex& stations, const Waypoint& waypoint) {
    if (const auto own = stations.cloudClassOf(waypoint.name)) return *own;
    QString latitude = waypoint.latitude, longitude = waypoint.longitude;
    try {
        parseLatLong(latitude);
        parseLatLong(longitude);
        const QString nearest = stations.closestTo(textToNumber(latitude), textToNumber(longitude));
        return stations.cloudClassOf(nearest).value_or(0);
    } catch (const Error&) {
        return 0;
    }
}

double averageIcon(const std::vector<Waypoint>& waypoints) {
    if (waypoints.empty()) return 0;
    int sum = 0;
    for (const Waypoint& waypoint : waypoints)
        sum += getCloudIcon(waypoint.cloudClass);
    return static_cast<double>(static_cast<float>(sum) / static_cast<float>(waypoints.size()));
}

} // namespace

QStringList flightPlanNames(Session& session, const FilePath& folder) {
    if (folder.isEmpty()) return {};
    QStringList names;
    for (const QString& ending : flightPlanEndings())
        names << session.files.list(folder, u'*' + ending);
    return names;
}

std::optional<FlightPlan> parseFlightPlan(const QByteArray& contents) {
    const QString text = decodeText(contents);
    if (auto plan = parseXmlFlightPlan(text)) return plan;
    if (text.contains(u"?xml", Qt::CaseInsensitive)) return std::nullopt;
    requireBoundedLines(contents); // of the XML forms all may stand in one
    FlightPlan plan;
    for (const QString& line : splitLines(text))
        readLine(line, plan);
    return plan;
}

std::optional<FlightPlan> readFlightPlan(Session& session, const FilePath& file) {
    const auto plan = parseFlightPlan(readAtMost(session.files, file, largestPlan, u"a flight plan"_s));
    if (!plan)
        session.user.showMessage(
            {MessageKind::exclamation, u"FSX Flight Plan"_s,
             u"FSX flight plan format is not supported by Morvane, please try another Flight Plan"_s});
    return plan;
}

Waypoint parseWaypoint(const QString& value) {
    QStringList fields = value.split(u',');
    for (QString& field : fields)
        field = trimmedBlanks(field);
    const WaypointLayout layout = layoutOf(fields);
    return {fields.value(layout.name), getWaypointType(fields.value(layout.type)),
            fields.value(layout.latitude), fields.value(layout.longitude), fields.value(layout.airway)};
}

QString getWaypointType(const QString& letter) {
    const QString lower = trimmedBlanks(letter).toLower();
    if (lower == u"a") return u"Airport"_s;
    if (lower == u"v") return u"VOR"_s;
    if (lower == u"i") return u"Intersection/Fix"_s;
    return lower == u"n" ? u"NDB"_s : QString();
}

std::int16_t getCloudIcon(std::int16_t cloudClass) {
    return cloudClass >= 1 && cloudClass <= 5 ? cloudClass : std::int16_t{1};
}

PlanWeather processFlightPlan(Session& session, const FlightPlan& plan,
                              const std::function<void(double)>& progress) {
    PlanWeather weather;
    if (plan.waypoints.empty()) return weather;
    const StationIndex stations(session);
    for (Waypoint waypoint : plan.waypoints) {
        waypoint.cloudClass = cloudClassAt(stations, waypoint);
        weather.waypoints.push_back(waypoint);
        progress(100.0 * static_cast<double>(weather.waypoints.size()) /
                 static_cast<double>(plan.waypoints.size()));
    }
    weather.average = averageIcon(weather.waypoints);
    weather.coverClass = roundedCover(weather.average);
    return weather;
}

} // namespace morvane
