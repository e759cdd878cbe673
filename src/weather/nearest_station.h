#pragma once

#include <QString>
#include <vector>

namespace morvane {

class Session;

/// Where the stations are whose reports are stored, read once for any number of searches.
class StationPositions {
public:
    /// Raises when there is no store. A row without a position, or with one that is no number, does not
    /// count.
    explicit StationPositions(const Session& session);

    /// The code of the nearest station, the first of equally near ones; empty when there is none within 9,999
    /// nautical miles. In degrees.
    QString closestTo(double latitude, double longitude) const;

private:
    struct Station {
        QString icao;
        double latitude, longitude;
    };
    std::vector<Station> stations_;
};

/// The nearest station of a place without a report of its own, in signed decimal degrees; empty when there is
/// none. Raises "Type mismatch" for a position that is no number.
QString getClosestMetarStation(Session& session, const QString& icao, const QString& latitude,
                               const QString& longitude);

} // namespace morvane
