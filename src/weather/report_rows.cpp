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

/// What another hand has filled in stays; nothing is no text.
void takePlace(RowSet& row, const StationPlace& place) {
    if (!place.latitude.isEmpty()) row.setText(u"METAR_LAT", place.latitude);
    if (!place.longitude.isEmpty()) row.setText(u"METAR_LONG", place.longitude);
}

void takePlaceOfAirport(const Session& session, RowSet& row, const QString& icao) {
    const RowSet airport(connectedStore(session), u"SELECT LAT, LONG FROM AIRPORTDATA WHERE ICAO = '"_s +
                                                      makeStatementSafe(icao) + u'\'');
    if (airport.atEnd()) return;
    if (!airport.isNull(u"LAT")) row.setText(u"METAR_LAT", airport.text(u"LAT"));
    if (!airport.isNull(u"LONG")) row.setText(u"METAR_LONG", airport.text(u"LONG"));
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

void storeReport(const Session& session, const clsWxFinder& report, const StationPlace& place) {
    clsWxFinder written = report;
    written.WxFinderIcao = trimmedBlanks(report.WxFinderIcao);
    RowSet row = stationRow(session, written.WxFinderIcao);
    if (row.atEnd()) {
        row.addNew();
        takePlaceOfAirport(session, row, written.WxFinderIcao);
    }
    takePlace(row, place);
    writeFields(row, columns, {}, std::move(written));
    row.update();
}

} // namespace morvane
