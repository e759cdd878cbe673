#include "cli/command_helpers.h"
#include "cli/command_tables.h"
#include "cli/json_output.h"
#include "cli/terminal.h"
#include "core/session.h"
#include "weather/airport_report.h"
#include "weather/airport_search.h"
#include "weather/coordinates.h"
#include "weather/decoded_lines.h"
#include "weather/metar_decoder.h"
#include "weather/nearest_station.h"
#include "weather/report_rows.h"
#include "weather/weather_state.h"

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
    const RowSet row = stationRow(session, station);
    return getDistanceNM(latitude, longitude, requiredDegrees(row.text(u"METAR_LAT")),
                         requiredDegrees(row.text(u"METAR_LONG")));
}

/// What the lines say and what they were made of. The report may be a neighbour's.
QJsonObject toJson(CommandContext& context, const Airport& airport, const QString& metar) {
    const ReportLines& lines = context.session.state<DecodedReportLines>().decodedMetarLines;
    const clsWxFinder report = clsDecodeMetar(context.user).decodeMetarString(trimmedBlanks(metar));
    return {{u"icao"_s, airport.icao},
            {u"name"_s, airport.name},
            {u"city"_s, airport.city},
            {u"metar"_s, metar},
            {u"decoded"_s, toJson(report)},
            {u"lines"_s, QJsonArray::fromStringList(QStringList(lines.begin(), lines.end()))}};
}

/// The decoded report of a station or an airport, line by line.
void showReport(CommandContext& context) {
    Session& session = context.session;
    const QString& icao = context.arguments[0];
    Airport airport = findAirport(session, icao).value_or(Airport{});
    airport.icao = icao.toUpper();
    session.state<WeatherState>().InhibitWeatherReports = false;
    const auto metar = getMetar(session, airport);
    if (!metar) return;
    if (context.options.contains(jsonOption.name))
        return printJson(QJsonDocument(toJson(context, airport, *metar)));
    for (const QString& line : session.state<DecodedReportLines>().decodedMetarLines)
        writeStandardOutput(line + u'\n');
}

void findAirports(CommandContext& context) {
    searchAirports(context.session.state<WeatherState>(), SearchBox::icao, context.arguments[0]);
    QJsonArray found;
    for (const Airport& airport : popAirports(context.session, {}).airports) {
        if (found.size() == mostAirports) break;
        found << toJson(airport);
    }
    printJson(QJsonDocument(found));
}

void findNearestStation(CommandContext& context) {
    const QString &latitude = context.arguments[0], &longitude = context.arguments[1];
    const QString station = getClosestMetarStation(context.session, latitude, longitude);
    if (station.isEmpty()) return fail(context, u"No station with a position has a stored report"_s);
    const double distance =
        distanceOf(context.session, station, requiredDegrees(latitude), requiredDegrees(longitude));
    printJson(QJsonDocument(QJsonObject{{u"icao"_s, station}, {u"distanceNM"_s, distance}}));
}

} // namespace

std::vector<Command> airportCommands() {
    const Operand latitude{.name = u"LAT"_s,
                           .meaning = u"degrees, north positive"_s,
                           .takes = u"a number from -90 to 90"_s,
                           .isTaken = [](const QString& word) { return isNumberWithin(word, -90, 90); }};
    const Operand longitude{.name = u"LONG"_s,
                            .meaning = u"degrees, east positive"_s,
                            .takes = u"a number from -180 to 180"_s,
                            .isTaken = [](const QString& word) { return isNumberWithin(word, -180, 180); }};
    return {{.words = u"metar show"_s,
             .operands = {{u"ICAO"_s, u"the airport's or the station's code"_s}},
             .options = {jsonOption},
             .run = showReport,
             .meaning = u"the decoded report of an airport, or of its nearest station, in eleven lines"_s,
             .example = u"metar show EHAM --json"_s},
            {.words = u"airport find"_s,
             .operands = {{u"PREFIX"_s, u"the beginning of the code"_s}},
             .run = findAirports,
             .meaning = u"the airports whose code begins so, at most 100"_s,
             .example = u"airport find EH"_s},
            {.words = u"station nearest"_s,
             .operands = {latitude, longitude},
             .run = findNearestStation,
             .meaning = u"the nearest station with a report, and its distance"_s,
             .example = u"station nearest -33.9 151.2"_s}};
}

} // namespace morvane
