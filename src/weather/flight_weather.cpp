#include "weather/flight_weather.h"

#include "core/error.h"
#include "core/session.h"
#include "weather/airport_report.h"
#include "weather/cover_choice.h"
#include "weather/flight_plan.h"
#include "weather/metar_decoder.h"
#include "weather/report_rows.h"

#include <algorithm>

namespace morvane {

namespace {

[[noreturn]] void noWeather(const QString& reason) {
    throw Error::withDescription(ErrorCode::invalidCall, reason);
}

clsWxFinder reportOf(const Session& session, const QString& typed) {
    const QString icao = trimmedBlanks(typed).toUpper();
    const auto airport = findAirport(session, icao);
    if (!airport && !findReport(session, icao))
        noWeather(u"'%1' is no airport that Morvane knows, and there is no stored report of it"_s.arg(typed));
    try {
        return reportOfAirport(session, airport.value_or(Airport{}), icao);
    } catch (const std::exception&) {
        noWeather(u"There is no stored report of %1, and none near it"_s.arg(icao));
    }
}

} // namespace

FlightWeather weatherOfAirports(const Session& session, const QString& departure,
                                const QString& destination) {
    FlightWeather weather{.reports = {reportOf(session, departure)}};
    if (!destination.isEmpty()) weather.reports.push_back(reportOf(session, destination));
    weather.cloudClass = computeAverageCover(weather.reports.front().WxFinderMaxCloud,
                                             weather.reports.back().WxFinderMaxCloud);
    if (weather.cloudClass == 0)
        noWeather(destination.isEmpty()
                      ? u"The report tells of no clouds: "_s + weather.reports.front().WxFinderMetar
                      : u"Neither report tells of clouds: %1; %2"_s.arg(
                            weather.reports.front().WxFinderMetar, weather.reports.back().WxFinderMetar));
    return weather;
}

/// Where no waypoint has a report with clouds the average would say clear, and nothing would know it.
std::optional<FlightWeather> weatherOfPlan(Session& session, const FilePath& file) {
    const auto plan = readFlightPlan(session, file);
    if (!plan) return std::nullopt;
    if (plan->waypoints.empty()) noWeather(file.fileName() + u" has no waypoints"_s);
    const PlanWeather weather = processFlightPlan(session, *plan);
    const auto hasClouds = [](const Waypoint& waypoint) { return waypoint.cloudClass > 0; };
    if (std::ranges::none_of(weather.waypoints, hasClouds))
        noWeather(u"No stored report along "_s + file.fileName() + u" tells of clouds"_s);
    return FlightWeather{.cloudClass = weather.coverClass,
                         .route =
                             u"%1 to %2, %3"_s.arg(plan->departure, plan->destination,
                                                   countText(std::ssize(weather.waypoints), u"waypoint"_s))};
}

std::optional<FlightWeather> weatherOfReport(Session& session, const QString& report) {
    const std::int16_t cloudClass = processMetarString(session, report);
    if (cloudClass == 0) return std::nullopt;
    return FlightWeather{.cloudClass = cloudClass,
                         .reports = {clsDecodeMetar(session.user).decodeMetarString(trimmedBlanks(report))}};
}

} // namespace morvane
