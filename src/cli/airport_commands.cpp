#include "cli/airport_commands.h"

#include "cli/command_helpers.h"
#include "cli/json_output.h"
#include "cli/terminal.h"
#include "core/session.h"
#include "core/statement_translation.h"
#include "core/store_records.h"
#include "weather/airport_search.h"
#include "weather/coordinates.h"
#include "weather/nearest_station.h"
#include "weather/weather_control.h"

#include <QJsonArray>

namespace morvane {

namespace {

constexpr std::size_t mostAirports = 100;

QJsonObject toJson(const Airport& airport) {
    return {{u"icao"_s, airport.icao},          {u"name"_s, airport.name},
            {u"city"_s, airport.city},          {u"state"_s, airport.state},
            {u"country"_s, airport.country},    {u"latitude"_s, airport.latitude},
            {u"longitude"_s, airport.longitude}};
}

double distanceOf(const Session& session, const QString& station, double latitude, double longitude) {
    const RowSet row(connectedStore(session),
                     u"SELECT METAR_LAT, METAR_LONG FROM DECODED_METAR WHERE METAR_ICAO = '"_s +
                         makeStatementSafe(station) + u'\'');
    return getDistanceNM(latitude, longitude, requiredDegrees(row.text(u"METAR_LAT")),
                         requiredDegrees(row.text(u"METAR_LONG")));
}

} // namespace

bool metarShow(CommandContext& context) {
    Session& session = context.session;
    const QString& icao = context.arguments[0];
    const Airport airport = findAirport(session, icao).value_or(Airport{});
    session.weather.InhibitWeatherReports = false;
    context.user.onModal = [&](Screen) {
        for (const QString& line : session.modal.decodedMetarLines)
            writeStandardOutput(line + u'\n');
    };
    QString metar;
    getMetar(session, icao.toUpper(), airport.latitude, airport.longitude, airport.city, airport.name, metar);
    return true;
}

bool airportFind(CommandContext& context) {
    searchAirports(context.session.weather, SearchBox::icao, context.arguments[0]);
    QJsonArray found;
    for (const Airport& airport : popAirports(context.session, {}).airports) {
        if (found.size() == mostAirports) break;
        found << toJson(airport);
    }
    printJson(QJsonDocument(found));
    return true;
}

bool stationNearest(CommandContext& context) {
    const QString &latitude = context.arguments[0], &longitude = context.arguments[1];
    const QString station = getClosestMetarStation(context.session, {}, latitude, longitude);
    if (station.isEmpty()) {
        fail(context, u"No station with a position has a stored report"_s);
        return true;
    }
    const double distance =
        distanceOf(context.session, station, requiredDegrees(latitude), requiredDegrees(longitude));
    printJson(QJsonDocument(QJsonObject{{u"icao"_s, station}, {u"distanceNM"_s, distance}}));
    return true;
}

} // namespace morvane
