#pragma once

#include "core/row_set.h"

#include <optional>

namespace morvane {

class Session;

/// The directory of airports, `AIRPORTDATA`.
class clsAirportData {
public:
    explicit clsAirportData(const Session& session) : session_(session) {}

    /// Opens the rows of the query. An empty query leaves the record set as it is.
    void getAirportData(const QString& query, std::optional<RowSet>& rows) const;

private:
    const Session& session_;
};

/// One airport as the directory spells it; texts are empty where it has none.
struct Airport {
    QString icao, name, city, state, country;
    QString latitude, longitude; ///< signed decimal degrees, see storedDegrees
};

/// The airport of that code; nothing when the directory has none.
std::optional<Airport> findAirport(const Session& session, const QString& icao);

/// The airport of the row at hand.
Airport airportOf(const RowSet& row);

} // namespace morvane
