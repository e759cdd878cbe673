#include "weather/nearest_station.h"

#include "core/literals.h"
#include "core/numbers.h"
#include "core/row_set.h"
#include "core/store_records.h"
#include "weather/coordinates.h"

namespace morvane {

StationPositions::StationPositions(const Session& session) {
    for (RowSet rows(connectedStore(session),
                     u"SELECT METAR_ICAO, METAR_LAT, METAR_LONG FROM DECODED_METAR"_s);
         !rows.atEnd(); rows.next()) {
        bool hasLatitude = false, hasLongitude = false;
        const double latitude = rows.text(u"METAR_LAT").toDouble(&hasLatitude);
        const double longitude = rows.text(u"METAR_LONG").toDouble(&hasLongitude);
        if (hasLatitude && hasLongitude) stations_.push_back({rows.text(u"METAR_ICAO"), latitude, longitude});
    }
}

QString StationPositions::closestTo(double latitude, double longitude) const {
    double best = 9999; // so a station on the other side of the globe is never taken: wanted
    QString icao;
    for (const Station& station : stations_) {
        const double distance = getDistanceNM(latitude, longitude, station.latitude, station.longitude);
        if (distance >= best) continue;
        best = distance;
        icao = station.icao;
    }
    return icao;
}

QString getClosestMetarStation(Session& session, const QString&, const QString& latitude,
                               const QString& longitude) {
    const double north = textToNumber(latitude), east = textToNumber(longitude);
    return StationPositions(session).closestTo(north, east);
}

} // namespace morvane
