#include "weather/airport_search.h"

#include "core/numbers.h"
#include "core/statement_translation.h"
#include "core/store_records.h"
#include "weather/weather_state.h"

namespace morvane {

namespace {

QString columnOf(SearchBox box) {
    switch (box) {
    case SearchBox::airportName:
        return u"AIRPORT_NAME"_s;
    case SearchBox::city:
        return u"CITY"_s;
    case SearchBox::icao:
        break;
    }
    return u"ICAO"_s;
}

QString term(const QString& beginning, const QString& value) {
    return value.isEmpty() ? QString() : beginning + makeStatementSafe(value) + u'\'';
}

/// The column of a filter list and what its values are called.
struct ListKind {
    QString column, plural;
};

FilterValues valuesOf(const Session& session, const ListKind& kind, const QString& where) {
    FilterValues found;
    for (RowSet rows(connectedStore(session), u"SELECT DISTINCT "_s + kind.column + u" FROM AIRPORTDATA "_s +
                                                  where + u" ORDER BY "_s + kind.column);
         !rows.atEnd(); rows.next())
        if (const QString value = rows.text(kind.column); !value.isEmpty()) found.values << value;
    found.countLine = QString::number(found.values.size()) + u' ' + kind.plural + u" Found"_s;
    return found;
}

} // namespace

/// A "%" or "_" that is typed stands for other letters, as everywhere behind LIKE; that is left so.
bool searchAirports(WeatherState& weather, SearchBox box, const QString& text) {
    const QString beginning = trimmedBlanks(text);
    if (beginning.isEmpty()) return false;
    const QString column = columnOf(box);
    weather.AirportQueryWhere = u" WHERE "_s + column + u" LIKE '"_s + makeStatementSafe(beginning) + u"%'"_s;
    weather.AirportQueryOrder = u" ORDER BY "_s + column;
    return true;
}

QString narrowedWhere(const WeatherState& weather, const AirportFilter& filter) {
    QString where = weather.AirportQueryWhere;
    for (const QString& next : {term(u" COUNTRY = '"_s, filter.country), term(u" STATE = '"_s, filter.state),
                                term(u" CITY =  '"_s, filter.city)})
        if (!next.isEmpty()) where += (where.isEmpty() ? u" WHERE "_s : u" AND "_s) + next;
    return where;
}

FilterValues popCountries(const Session& session, const QString& where) {
    return valuesOf(session, {u"COUNTRY"_s, u"Countries"_s}, where);
}

FilterValues popStates(const Session& session, const QString& where) {
    const QString known = (where.isEmpty() ? u" WHERE"_s : where + u" AND"_s) + u" NOT ISNULL(STATE)"_s;
    return valuesOf(session, {u"STATE"_s, u"States"_s}, known);
}

FilterValues popCities(const Session& session, const QString& where) {
    return valuesOf(session, {u"CITY"_s, u"Cities"_s}, where);
}

FoundAirports popAirports(const Session& session, const AirportFilter& filter) {
    const WeatherState& weather = session.state<WeatherState>();
    RowSet rows(connectedStore(session),
                weather.AirportQuery + narrowedWhere(weather, filter) + weather.AirportQueryOrder);
    if (rows.atEnd()) return {{}, u"No Airports Found"_s};
    FoundAirports found;
    found.airports.reserve(static_cast<std::size_t>(rows.count()));
    for (; !rows.atEnd(); rows.next())
        found.airports.push_back(airportOf(rows));
    found.countLine = QString::number(rows.count()) + u" Airports Found"_s;
    return found;
}

} // namespace morvane
