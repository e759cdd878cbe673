#pragma once

#include "core/numbers.h"
#include "core/row_set.h"
#include "core/session.h"
#include "core/store.h"
#include "weather/airport_data.h"
#include "weather/report_rows.h"

#include <limits>

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

inline constexpr double nowhere = std::numeric_limits<double>::quiet_NaN();

/// A stored report of that cloud class; its station has a position, in degrees, where one is given.
inline void addStation(Session& session, const QString& icao, std::int16_t cloudClass,
                       double latitude = nowhere, double longitude = nowhere) {
    clsWxFinder report;
    report.WxFinderIcao = icao;
    report.WxFinderMetar = icao + u" 010000Z 00000KT"_s;
    report.WxFinderMaxCloud = cloudClass;
    const auto degrees = [](double angle) {
        return angle == angle ? floatText(static_cast<float>(angle)) : QString();
    };
    storeReport(session, report, {degrees(latitude), degrees(longitude)});
}

} // namespace morvane::test
