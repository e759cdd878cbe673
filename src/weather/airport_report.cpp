#include "weather/airport_report.h"

#include "core/session.h"
#include "core/statement_translation.h"
#include "core/store_records.h"
#include "weather/decoded_lines.h"
#include "weather/nearest_station.h"
#include "weather/weather_state.h"

namespace morvane {

namespace {

/// An empty code has no report, even where lines that are none were stored under one. Raises.
RowSet reportsOf(const Session& session, const QString& icao) {
    if (icao.isEmpty()) throw Error(ErrorCode::invalidCall);
    return {connectedStore(session),
            u"SELECT * FROM DECODED_METAR WHERE METAR_ICAO = '"_s + makeStatementSafe(icao) + u'\''};
}

/// The airport's own report or, without one, its nearest neighbour's.
RowSet reportFor(Session& session, const QString& icao, const QString& latitude, const QString& longitude) {
    RowSet own = reportsOf(session, icao);
    if (!own.atEnd()) return own;
    return reportsOf(session, getClosestMetarStation(session, icao, latitude, longitude));
}

/// A neighbour's report reads as the airport's own: the code in front is exchanged.
QString reportUnder(const QString& icao, const RowSet& row) {
    const QString report = row.text(u"METAR_STRING");
    if (row.text(u"METAR_ICAO").compare(icao, Qt::CaseInsensitive) == 0) return report;
    return icao + u' ' + report.section(u' ', 1);
}

void takeReport(WeatherState& weather, const QString& report) {
    if (weather.optDepAirport) weather.DepMetar = report;
    if (weather.optDestAirport) weather.DestMetar = report;
}

void showReport(Session& session, const QStringList& lines) {
    session.state<DecodedReportLines>().decodedMetarLines = lines;
    session.user.showModal(Screen::frm_metar);
}

const Message notAvailable{
    MessageKind::exclamation, u"Metar Error!"_s,
    u"The METAR requested cannot be accessed at this time or is not available please try again later"_s};

} // namespace

bool getMetar(Session& session, const QString& icao, const QString& latitude, const QString& longitude,
              const QString& city, const QString& name, QString& metar) {
    try {
        const QString code = trimmedBlanks(icao);
        const RowSet row = reportFor(session, code, latitude, longitude);
        const QString heading = u"ICAO Code: "_s + code + u", City: "_s + city + u", Airport Name: "_s + name;
        const QString report = reportUnder(code, row);
        const QStringList lines = decodedMetarLines(row, heading, report, session.clock.localTime().date());
        metar = report;
        takeReport(session.state<WeatherState>(), report);
        session.user.refreshScreen(Screen::frm_WxControl);
        if (!session.state<WeatherState>().InhibitWeatherReports) showReport(session, lines);
        return true;
    } catch (const std::exception&) {
        session.user.showMessage(notAvailable);
        return false;
    }
}

bool chooseAirport(Session& session, const Airport& airport) {
    const QString icao = trimmedBlanks(airport.icao);
    WeatherState& weather = session.state<WeatherState>();
    QString metar;
    const bool isDeparture = weather.optDepAirport;
    if (!getMetar(session, icao, airport.latitude, airport.longitude, airport.city, airport.name, metar))
        return false;
    (isDeparture ? weather.DepAirportName : weather.DestAirportName) = airport.name;
    (isDeparture ? weather.DepIcao : weather.DestIcao) = icao;
    (isDeparture ? weather.DepCity : weather.DestCity) = airport.city;
    return true;
}

} // namespace morvane
