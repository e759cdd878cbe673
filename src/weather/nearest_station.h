#pragma once

#include <QHash>
#include <QString>
#include <cstdint>
#include <optional>
#include <vector>

namespace morvane {

class Session;

/// The stations whose reports are stored, read once for any number of searches.
class StationIndex {
public:
    /// Raises when there is no store.
    explicit StationIndex(const Session& session);

    /// The code of the nearest station, the first of equally near ones; empty when there is none within 9,999
    /// nautical miles. In degrees. A station without a position, or with one that is no number, does not
    /// count.
    QString closestTo(double latitude, double longitude) const;
    /// The cloud class of that station's report, without regard to case; nothing without a report. An empty
    /// code has none, even where lines that are no report were stored under one.
    std::optional<std::int16_t> cloudClassOf(const QString& icao) const;

private:
    struct Place {
        QString icao;
        double latitude, longitude;
    };
    std::vector<Place> places_;
    QHash<QString, std::int16_t> cloudClasses_;
};

/// The nearest station of a place without a report of its own, in signed decimal degrees; empty when there is
/// none. Raises "Type mismatch" for a position that is no number.
QString getClosestMetarStation(const Session& session, const QString& latitude, const QString& longitude);

} // namespace morvane
