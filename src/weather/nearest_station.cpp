#include "weather/nearest_station.h"

#include "core/literals.h"
#include "core/numbers.h"
#include "core/row_set.h"
#include "core/store_records.h"
#include "weather/coordinates.h"

namespace morvane {

StationIndex::StationIndex(const Session& session) {
    for (RowSet rows(connectedStore(session),
                     u"SELECT METAR_ICAO, METAR_LAT, METAR_LONG, METAR_MAX_CLOUD FROM DECODED_METAR"_s);
         !rows.atEnd(); rows.next()) {
        const QString icao = trimmedBlanks(rows.text(u"METAR_ICAO"));
        cloudClasses_.insert(icao.toUpper(), rows.text(u"METAR_MAX_CLOUD").toShort());
        const auto latitude = storedDegrees(rows.text(u"METAR_LAT"));
        const auto longitude = storedDegrees(rows.text(u"METAR_LONG"));
        if (latitude && longitude) places_.push_back({icao, *latitude, *longitude});
    }
}

QString StationIndex::closestTo(double latitude, double longitude) const {
    double best = 9999; // so a station on the other side of the globe is never taken: wanted
    QString icao;
    for (const Place& place : places_) {
        const double distance = getDistanceNM(latitude, longitude, place.latitude, place.longitude);
        if (!(distance < best)) continue;
        best = distance;
        icao = place.icao;
    }
    return icao;
}

std::optional<std::int16_t> StationIndex::cloudClassOf(const QString& icao) const {
    const QString code = trimmedBlanks(icao).toUpper();
    const auto found = cloudClasses_.constFind(code);
    return code.isEmpty() || found == cloudClasses_.constEnd() ? std::nullopt : std::optional(*found);
}

QString getClosestMetarStation(const Session& session, const QString& latitude, const QString& longitude) {
    const double north = requiredDegrees(latitude), east = requiredDegrees(longitude);
    return StationIndex(session).closestTo(north, east);
}

} // namespace morvane
