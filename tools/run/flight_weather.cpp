#include "flight_weather.h"

#include "cli/terminal.h"
#include "core/failure_report.h"
#include "core/numbers.h"
#include "sets/cloud_cover.h"
#include "weather/airport_report.h"
#include "weather/cover_choice.h"
#include "weather/decoded_lines.h"
#include "weather/flight_plan.h"
#include "weather/metar_decoder.h"
#include "weather/reports.h"
#include "weather/weather_refresh.h"
#include "weather/weather_state.h"

#include <QFileInfo>

namespace morvane {

namespace {

void describe(const clsWxFinder& report) {
    const std::pair<const char16_t*, QString> lines[] = {
        {u"Station", report.WxFinderIcao},
        {u"Wind", report.WxFinderWindDirection + u' ' + report.WxFinderWindSpeed +
                      report.WxFinderWindSpeedMeasurement},
        {u"Visibility", report.WxFinderVisibility},
        {u"Weather", report.WxFinderWeatherStrength + report.WxFinderWeather},
        {u"Sky", report.WxFinderCloudCover},
        {u"Temperature", report.WxFinderTemperature},
        {u"Pressure", report.WxFinderPressure},
    };
    for (const auto& [name, value] : lines)
        if (!trimmedBlanks(value).isEmpty())
            say(u"  %1 %2"_s.arg(QStringView(name).toString() + u':', -12).arg(value));
}

/// One end of the flight, as a click in the list of airports chooses it.
bool chooseEnd(Session& session, const QString& icao, bool isDeparture) {
    if (icao.isEmpty()) return true;
    session.state<WeatherState>().optDepAirport = isDeparture;
    session.state<WeatherState>().optDestAirport = !isDeparture;
    say(isDeparture ? u"Departure"_s : u"Destination"_s);
    Airport unlisted;
    unlisted.icao = icao.toUpper();
    return chooseAirport(session, findAirport(session, icao).value_or(unlisted));
}

/// A waypoint without a report is counted as a clear one.
QString cloudAt(const Waypoint& waypoint) {
    const QString cloud = coverOfClass(getCloudIcon(waypoint.cloudClass)).caption;
    return waypoint.cloudClass == 0 ? cloud + u" (no clouds reported)"_s : cloud;
}

void describe(const FlightPlan& plan, const PlanWeather& weather) {
    say(u"Flight plan: %1 to %2, %3 ft"_s.arg(plan.departure, plan.destination, plan.altitude));
    for (const Waypoint& waypoint : weather.waypoints)
        say(u"  %1 %2 %3 %4 %5"_s.arg(waypoint.name, -8)
                .arg(waypoint.type, -17)
                .arg(waypoint.latitude, -14)
                .arg(waypoint.longitude, -15)
                .arg(cloudAt(waypoint)));
    if (weather.waypoints.empty()) return say(u"The plan has no waypoints."_s);
    say(u"  Average %1: %2"_s.arg(weather.average, 0, 'f', 2).arg(coverOfClass(weather.coverClass).caption));
}

} // namespace

void say(const QString& text) {
    writeStandardOutput(text + u'\n');
}

std::int16_t classOfReport(Session& session, const QString& metar) {
    say(u"METAR: "_s + metar);
    describe(clsDecodeMetar(session.user).decodeMetarString(metar));
    return processMetarString(session, metar);
}

std::int16_t classOfAirports(Session& session, ConsoleUser& user, const QString& departure,
                             const QString& destination) {
    session.state<WeatherState>().InhibitWeatherReports = false;
    user.onModal = [&session](Screen) {
        for (const QString& line : session.state<DecodedReportLines>().decodedMetarLines)
            if (!trimmedBlanks(line).isEmpty()) say(u"  "_s + line);
    };
    if (!chooseEnd(session, departure, true) || !chooseEnd(session, destination, false)) return 0;
    const std::int16_t cloudClass = coverOfAirports(session);
    if (cloudClass == 0) say(u"Neither report tells of the sky."_s);
    return cloudClass;
}

std::int16_t classOfPlan(Session& session, const QString& file) {
    std::int16_t cloudClass = 0;
    reportFailures(session.user, {u"Flight Plan Error!"_s, MessageKind::exclamation}, [&] {
        const auto plan = readFlightPlan(session, FilePath(QFileInfo(file).absoluteFilePath()));
        if (!plan) return;
        const PlanWeather weather = processFlightPlan(session, *plan);
        describe(*plan, weather);
        cloudClass = weather.coverClass;
    });
    return cloudClass;
}

bool refreshCycle(Session& session, ConsoleUser& user) {
    user.onModal = [&session](Screen screen) {
        session.state<MetarRequest>().metarRequested = screen == Screen::frm_metar_request;
    };
    refreshWeather(session);
    if (user.hasFailed()) return false;
    say(u"The cycle of %1Z is stored; the table holds the reports of %2 stations."_s
            .arg(session.state<WeatherState>().MetarCycleHour, 2, 10, QChar(u'0'))
            .arg(session.rows<clsWxFinders>()->Count()));
    return true;
}

} // namespace morvane
