#include "weather/airport_data.h"

#include "core/statement_translation.h"
#include "core/store_records.h"

namespace morvane {

void clsAirportData::getAirportData(const QString& query, std::optional<RowSet>& rows) const {
    if (!query.isEmpty()) rows.emplace(connectedStore(session_), query);
}

std::optional<Airport> findAirport(const Session& session, const QString& icao) {
    std::optional<RowSet> rows;
    clsAirportData(session).getAirportData(
        u"SELECT * FROM AIRPORTDATA WHERE ICAO = '"_s + makeStatementSafe(icao) + u'\'', rows);
    return rows->atEnd() ? std::nullopt : std::optional(airportOf(*rows));
}

Airport airportOf(const RowSet& row) {
    return {row.text(u"ICAO"),    row.text(u"AIRPORT_NAME"), row.text(u"CITY"), row.text(u"STATE"),
            row.text(u"COUNTRY"), row.text(u"LAT"),          row.text(u"LONG")};
}

} // namespace morvane
