#include "weather/wx_finders.h"

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

void setWhenKnown(RowSet& row, QStringView column, const QString& value) {
    if (!value.isEmpty()) row.setText(column, value);
}

} // namespace

bool clsWxFinders::reload(Session& session) {
    return reloadCollection(session, session.gWxFinders, &clsWxFinders::getMetarsFromDB);
}

bool clsWxFinders::getMetarsFromDB() {
    return clsWxFinderData(session_).GetWeatherFromDb();
}

bool clsWxFinderData::GetWeatherFromDb() {
    const FailureReport report{u"Metar Database Error!"_s, MessageKind::exclamation};
    return reportFailures(session_.user, report, [&] {
        clsWxFinders& finders = required(session_.gWxFinders);
        const QString presentYear = QString::number(session_.clock.localTime().date().year());
        for (RowSet rows(connectedStore(session_), u"SELECT * FROM DECODED_METAR ORDER BY METAR_ICAO"_s);
             !rows.atEnd(); rows.next()) {
            clsWxFinder finder;
            readFields(rows, columns, session_.DecimalSep, finder);
            // Rows of a server's cycle have no year.
            if (trimmedBlanks(finder.WxFinderYear).isEmpty()) finder.WxFinderYear = presentYear;
            finders.AddItem(std::move(finder));
        }
    });
}

bool clsWxFinderData::insertDecodedMetar(const DecodedMetarRow& decoded) {
    const FailureReport report{u"Metar Decode Error!"_s, MessageKind::exclamation};
    return reportFailures(session_.user, report, [&] {
        clsWxFinder written = decoded.report;
        written.WxFinderIcao = trimmedBlanks(written.WxFinderIcao);
        RowSet row(connectedStore(session_), u"SELECT * FROM DECODED_METAR WHERE METAR_ICAO = '"_s +
                                                 makeStatementSafe(written.WxFinderIcao) + u'\'');
        if (row.atEnd()) row.addNew();
        writeFields(row, columns, session_.DecimalSep, written);
        setWhenKnown(row, u"METAR_LAT", decoded.latitude);
        setWhenKnown(row, u"METAR_LONG", decoded.longitude);
        row.update();
    });
}

} // namespace morvane
