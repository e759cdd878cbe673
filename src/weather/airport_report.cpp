#include "weather/airport_report.h"

#include "core/error.h"
#include "core/session.h"
#include "weather/decoded_lines.h"
#include "weather/nearest_station.h"
#include "weather/report_rows.h"
#include "weather/weather_state.h"

namespace morvane {

namespace {

void takeReport(WeatherState& weather, const QString& report) {
    if (weather.optDepAirport) weather.DepMetar = report;
    if (weather.optDestAirport) weather.DestMetar = report;
}

void showReport(Session& session, const ReportLines& lines) {
    session.state<DecodedReportLines>().decodedMetarLines = lines;
    session.user.showModal(Screen::frm_metar);
}

const Message notAvailable{
    MessageKind::exclamation, u"Metar Error!"_s,
    u"The METAR requested cannot be accessed at this time or is not available please try again later"_s};

} // namespace

/// The code in front of a neighbour's is exchanged.
clsWxFinder reportOfAirport(const Session& session, const Airport& airport, const QString& icao) {
    if (icao.isEmpty()) throw Error(ErrorCode::invalidCall);
    if (const auto own = findReport(session, icao)) return *own;
    clsWxFinder report =
        findReport(session, getClosestMetarStation(session, airport.latitude, airport.longitude)).value();
    report.WxFinderMetar = icao + u' ' + report.WxFinderMetar.section(u' ', 1);
    return report;
}

std::optional<QString> getMetar(Session& session, const Airport& airport) {
    try {
        const QString code = trimmedBlanks(airport.icao);
        const clsWxFinder report = reportOfAirport(session, airport, code);
        const QString heading =
            u"ICAO Code: "_s + code + u", City: "_s + airport.city + u", Airport Name: "_s + airport.name;
        WeatherState& weather = session.state<WeatherState>();
        takeReport(weather, report.WxFinderMetar);
        session.user.refreshScreen(Screen::frm_WxControl);
        if (!weather.InhibitWeatherReports)
            showReport(session, decodedMetarLines(report, heading, session.clock.localTime().date()));
        return report.WxFinderMetar;
    } catch (const std::exception&) {
        session.user.showMessage(notAvailable);
        return std::nullopt;
    }
}

bool chooseAirport(Session& session, const Airport& airport) {
    WeatherState& weather = session.state<WeatherState>();
    const bool isDeparture = weather.optDepAirport;
    if (!getMetar(session, airport)) return false;
    (isDeparture ? weather.DepAirportName : weather.DestAirportName) = airport.name;
    (isDeparture ? weather.DepIcao : weather.DestIcao) = trimmedBlanks(airport.icao);
    (isDeparture ? weather.DepCity : weather.DestCity) = airport.city;
    return true;
}

} // namespace morvane
