#pragma once

#include "core/row_set.h"
#include "core/session.h"
#include "core/store.h"
#include "weather/airport_data.h"

namespace morvane::test {

/// Rows of the directory of airports, written as one.
inline void addAirports(Session& session, const std::vector<Airport>& airports) {
    StoreTransaction whole(*session.adoConn);
    RowSet rows(*session.adoConn, u"SELECT * FROM AIRPORTDATA WHERE ID = 0"_s);
    for (const Airport& airport : airports) {
        rows.addNew();
        rows.setText(u"ICAO", airport.icao);
        rows.setText(u"AIRPORT_NAME", airport.name);
        rows.setText(u"CITY", airport.city);
        if (!airport.state.isNull()) rows.setText(u"STATE", airport.state);
        rows.setText(u"COUNTRY", airport.country);
        rows.setText(u"LAT", airport.latitude);
        rows.setText(u"LONG", airport.longitude);
        rows.update();
    }
    whole.commit();
}

} // namespace morvane::test
