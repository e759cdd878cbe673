#include "weather/report_rows.h"

#include "core/statement_translation.h"
#include "core/store_records.h"

namespace morvane {

namespace {

const RecordColumns<clsWxFinder> columns = {
    {u"METAR_STRING"_s, &clsWxFinder::WxFinderMetar},
    {u"METAR_ICAO"_s, &clsWxFinder::WxFinderIcao},
    {u"METAR_WIND_SPEED"_s, &clsWxFinder::WxFinderWindSpeed},
    {u"METAR_WIND_SPEED_MEASUREMENT"_s, &clsWxFinder::WxFinderWindSpeedMeasurement},
    {u"METAR_WIND_DIRECTION"_s, &clsWxFinder::WxFinderWindDirection},
    {u"METAR_WIND_GUSTING"_s, &clsWxFinder::WxFinderWindGusting},
    {u"METAR_WIND_GUST"_s, &clsWxFinder::WxFinderWindGust},
    {u"METAR_WIND_VARYING"_s, &clsWxFinder::WxFinderWindVarying},
    {u"METAR_WIND_VARYING_FROM"_s, &clsWxFinder::WxFinderWindVaryingFrom},
    {u"METAR_WIND_VARYING_TO"_s, &clsWxFinder::WxFinderWindVaryingTo},
    {u"METAR_CLOUD_COVER"_s, &clsWxFinder::WxFinderCloudCover},
    {u"METAR_MAX_CLOUD"_s, &clsWxFinder::WxFinderMaxCloud},
    {u"METAR_VISIBILITY"_s, &clsWxFinder::WxFinderVisibility},
    {u"METAR_VISIBILITY_FORMAT"_s, &clsWxFinder::WxFinderVisibilityFormat},
    {u"METAR_WEATHER_STRENGTH"_s, &clsWxFinder::WxFinderWeatherStrength},
    {u"METAR_FOG"_s, &clsWxFinder::WxFinderFog},
    {u"METAR_WEATHER"_s, &clsWxFinder::WxFinderWeather},
    {u"METAR_TEMP"_s, &clsWxFinder::WxFinderTemperature},
    {u"METAR_DEWPOINT"_s, &clsWxFinder::WxFinderDewpoint},
    {u"METAR_PRESSURE"_s, &clsWxFinder::WxFinderPressure},
    {u"METAR_DATE"_s, &clsWxFinder::WxFinderDate},
    {u"METAR_MONTH"_s, &clsWxFinder::WxFinderMonth},
    {u"METAR_YEAR"_s, &clsWxFinder::WxFinderYear},
    {u"METAR_TIME"_s, &clsWxFinder::WxFinderTime},
    {u"METAR_CYCLE"_s, &clsWxFinder::WxFinderCycle},
};

/// The statements of a row: its columns, then latitude and longitude. A cycle stores ten thousand reports,
/// for which a row set each would take three times as long.
struct RowStatements {
    RowStatements() {
        QStringList names;
        for (const auto& column : columns)
            names << column.name;
        const QString marks = u"?,"_s.repeated(names.size());
        add = u"INSERT INTO DECODED_METAR(%1, METAR_LAT, METAR_LONG) VALUES(%2 ?, ?)"_s.arg(
            names.join(u", "_s), marks);
        overwrite = u"UPDATE DECODED_METAR SET %1 = ?, METAR_LAT = coalesce(?, METAR_LAT), METAR_LONG = "
                    "coalesce(?, METAR_LONG) WHERE rowid = ?"_s.arg(names.join(u" = ?, "_s));
    }
    QString find = u"SELECT rowid FROM DECODED_METAR WHERE METAR_ICAO = ?"_s;
    QString place = u"SELECT LAT, LONG FROM AIRPORTDATA WHERE ICAO = ?"_s;
    QString add, overwrite;
};

const RowStatements& rowStatements() {
    static const RowStatements statements;
    return statements;
}

StoreValue valueOrNull(const QString& text) {
    return text.isEmpty() ? StoreValue() : StoreValue(text);
}

StoreValue stored(const QString& text) {
    return text;
}
StoreValue stored(std::int64_t number) {
    return number;
}
StoreValue stored(const QDateTime&) = delete;

void bindFields(StoreStatement& run, const clsWxFinder& finder) {
    for (const auto& column : columns)
        std::visit(
            [&](auto member) {
                if constexpr (!std::is_same_v<decltype(member), QDateTime clsWxFinder::*>)
                    run.bind(stored(finder.*member));
            },
            column.member);
}

std::optional<std::int64_t> rowOf(Store& store, const QString& icao) {
    StoreStatement run(store, rowStatements().find);
    run.bind(icao);
    if (!run.step()) return std::nullopt;
    return run.number(0);
}

void addRow(Store& store, const clsWxFinder& finder, const StoreValue& latitude,
            const StoreValue& longitude) {
    StoreStatement airport(store, rowStatements().place);
    airport.bind(finder.WxFinderIcao);
    const bool hasAirport = airport.step();
    const auto known = [&](const StoreValue& given, int column) {
        const bool isGiven = !std::holds_alternative<std::monostate>(given);
        return isGiven || !hasAirport ? given : airport.value(column);
    };
    StoreStatement run(store, rowStatements().add);
    bindFields(run, finder);
    run.bind(known(latitude, 0));
    run.bind(known(longitude, 1));
    run.step();
}

void overwriteRow(Store& store, std::int64_t key, const clsWxFinder& finder, const StoreValue& latitude,
                  const StoreValue& longitude) {
    StoreStatement run(store, rowStatements().overwrite);
    bindFields(run, finder);
    for (const StoreValue& value : {latitude, longitude, StoreValue(key)})
        run.bind(value);
    run.step();
}

} // namespace

RowSet stationRow(const Session& session, const QString& icao) {
    return {connectedStore(session), u"SELECT * FROM DECODED_METAR WHERE METAR_ICAO = '"_s +
                                         makeStatementSafe(trimmedBlanks(icao)) + u'\''};
}

clsWxFinder reportOf(const RowSet& row) {
    clsWxFinder report;
    readFields(row, columns, {}, report);
    return report;
}

std::optional<clsWxFinder> findReport(const Session& session, const QString& icao) {
    const RowSet row = stationRow(session, icao);
    return icao.isEmpty() || row.atEnd() ? std::nullopt : std::optional(reportOf(row));
}

bool hasAirportPlace(const Session& session, const QString& icao) {
    StoreStatement airport(connectedStore(session), rowStatements().place);
    airport.bind(icao);
    return airport.step() && !std::holds_alternative<std::monostate>(airport.value(0));
}

void storeReport(const Session& session, const clsWxFinder& report, const StationPlace& place) {
    Store& store = connectedStore(session);
    clsWxFinder written = report;
    written.WxFinderIcao = trimmedBlanks(report.WxFinderIcao);
    const StoreValue latitude = valueOrNull(place.latitude), longitude = valueOrNull(place.longitude);
    if (const auto key = rowOf(store, written.WxFinderIcao))
        overwriteRow(store, *key, written, latitude, longitude);
    else
        addRow(store, written, latitude, longitude);
}

} // namespace morvane
