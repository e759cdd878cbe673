#pragma once

#include "core/row_set.h"

#include <optional>

namespace morvane {

class Session;

/// One airport as the directory, `AIRPORTDATA`, spells it; texts are empty where it has none.
struct Airport {
    QString icao, name, city, state, country;
    QString latitude, longitude; ///< signed decimal degrees, see storedDegrees
};

/// The airport of that code; nothing when the directory has none.
std::optional<Airport> findAirport(const Session& session, const QString& icao);

/// The airport of the row at hand.
Airport airportOf(const RowSet& row);

} // namespace morvane
