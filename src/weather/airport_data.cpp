#include "weather/airport_data.h"

#include "core/statement_translation.h"
#include "core/store_records.h"

namespace morvane {

std::optional<Airport> findAirport(const Session& session, const QString& icao) {
    const RowSet row(connectedStore(session),
                     u"SELECT * FROM AIRPORTDATA WHERE ICAO = '"_s + makeStatementSafe(icao) + u'\'');
    return row.atEnd() ? std::nullopt : std::optional(airportOf(row));
}

Airport airportOf(const RowSet& row) {
    return {row.text(u"ICAO"),    row.text(u"AIRPORT_NAME"), row.text(u"CITY"), row.text(u"STATE"),
            row.text(u"COUNTRY"), row.text(u"LAT"),          row.text(u"LONG")};
}

} // namespace morvane
