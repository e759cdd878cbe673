#include "weather/wx_finders.h"

#include "core/failure_report.h"
#include "core/statement_translation.h"
#include "core/store_records.h"
#include "core/store_statement.h"
#include "weather/cycle_progress.h"
#include "weather/metar_decoder.h"
#include "weather/weather_state.h"

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

const FailureReport insertFailure{u"Metar Decode Error!"_s, MessageKind::exclamation};

/// A row that the table does not take costs that row; a store that cannot be written any more would cost a
/// message a row.
bool endsTheLoad(ErrorCode code) {
    return code == ErrorCode::diskFull || code == ErrorCode::ioFailure || code == ErrorCode::permissionDenied;
}

/// The statements of a row: its columns, then latitude and longitude. Built once: a cycle runs them some ten
/// thousand times.
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

void addRow(Store& store, const clsWxFinder& finder, StoreValue latitude, StoreValue longitude) {
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

void overwriteRow(Store& store, std::int64_t key, const clsWxFinder& finder, StoreValue latitude,
                  StoreValue longitude) {
    StoreStatement run(store, rowStatements().overwrite);
    bindFields(run, finder);
    for (const StoreValue& value : {latitude, longitude, StoreValue(key)})
        run.bind(value);
    run.step();
}

} // namespace

bool clsWxFinders::reload(Session& session) {
    return reloadCollection(session, session.rows<clsWxFinders>(), &clsWxFinders::getMetarsFromDB);
}

bool clsWxFinders::getMetarsFromDB() {
    return clsWxFinderData(session_).GetWeatherFromDb();
}

bool clsWxFinders::getMetarsFromNOAA(const QString& picture) {
    return clsWxFinderData(session_, picture).GetWeatherFromNOAA();
}

bool clsWxFinders::getMetarsFromASv6(const QString& picture) {
    return clsWxFinderData(session_, picture).GetWeatherFromASv6();
}

bool clsWxFinderData::GetWeatherFromDb() {
    const FailureReport report{u"Metar Database Error!"_s, MessageKind::exclamation};
    return reportFailures(session_.user, report, [&] {
        clsWxFinders& finders = required(session_.rows<clsWxFinders>());
        const QString presentYear = QString::number(session_.clock.localTime().date().year());
        RowSet rows(connectedStore(session_), u"SELECT * FROM DECODED_METAR ORDER BY METAR_ICAO"_s);
        // While the program starts the bar is the splash's, which stays silent about an empty table.
        const QString text = session_.StartingUp ? u"Loading Metars from Database. Please Wait............."_s
                                                 : u"Morvane is loading the Metar cycle from from the "
                                                   "database.  Please wait....."_s;
        if (!session_.StartingUp) showProgress(text);
        CycleProgress progress(session_.user, text, 100.0 / (rows.count() + 2));
        if (!rows.atEnd()) session_.state<WeatherState>().MetarDataLoaded = true;
        for (; !rows.atEnd(); rows.next(), progress.advance()) {
            clsWxFinder finder;
            readFields(rows, columns, session_.DecimalSep, finder);
            // Rows of a server's cycle have no year.
            if (trimmedBlanks(finder.WxFinderYear).isEmpty()) finder.WxFinderYear = presentYear;
            if (trimmedBlanks(finder.WxFinderIcao) == u"KSEA") takeCycleOf(finder);
            finders.AddItem(std::move(finder));
        }
        if (!session_.StartingUp) session_.user.hideMessage();
    });
}

/// Wanted: one fixed station tells a session that was started from the stored table which cycle it holds,
/// and without its row there is none.
void clsWxFinderData::takeCycleOf(const clsWxFinder& reference) {
    WeatherState& weather = session_.state<WeatherState>();
    if (weather.MetarCycleDay != 0) return;
    // A report without a date leaves the cycle unknown.
    weather.MetarCycleDay = trimmedBlanks(reference.WxFinderDate).toShort();
    weather.MetarCycleMonth = getMonthNumber(reference.WxFinderMonth);
    weather.MetarCycleYear = trimmedBlanks(reference.WxFinderYear).toShort();
    weather.MetarCycleHour = trimmedBlanks(reference.WxFinderCycle).toShort();
}

RowSet clsWxFinderData::getDecodedMetar(const QString& icao) const {
    const QString code = trimmedBlanks(icao);
    const QString all = u"SELECT * FROM DECODED_METAR"_s;
    return RowSet(connectedStore(session_),
                  code.isEmpty() ? all : all + u" WHERE METAR_ICAO = '"_s + makeStatementSafe(code) + u'\'');
}

void clsWxFinderData::writeRow(const DecodedMetarRow& decoded) {
    Store& store = connectedStore(session_);
    clsWxFinder written = decoded.report;
    written.WxFinderIcao = trimmedBlanks(written.WxFinderIcao);
    const StoreValue latitude = valueOrNull(decoded.latitude), longitude = valueOrNull(decoded.longitude);
    if (const auto key = rowOf(store, written.WxFinderIcao))
        overwriteRow(store, *key, written, latitude, longitude);
    else
        addRow(store, written, latitude, longitude);
}

bool clsWxFinderData::insertDecodedMetar(const DecodedMetarRow& decoded) {
    return reportFailures(session_.user, insertFailure, [&] {
        writeRow(decoded);
        session_.state<WeatherState>().MetarDataLoaded = true;
    });
}

void clsWxFinderData::storeReport(const DecodedMetarRow& decoded) {
    try {
        writeRow(decoded);
    } catch (const Error& error) {
        if (endsTheLoad(error.code())) throw;
        showFailure(session_.user, insertFailure, error.description());
    }
}

std::int16_t clsWxFinderData::getMonthNumber(const QString& name) {
    const QString wanted = trimmedBlanks(name);
    for (std::int16_t month = 1; month <= 12; ++month)
        if (clsDecodeMetar::getMonthName(month) == wanted) return month;
    return 0;
}

} // namespace morvane
