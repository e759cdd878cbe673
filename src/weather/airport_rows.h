#pragma once

#include <QString>
#include <vector>

namespace morvane {

/// One airport of data/airports/airports.tsv. City, region and elevation can be empty.
struct AirportRow {
    QString code; ///< four letters
    QString name;
    QString city;
    QString region;
    QString country;
    QString latitude; ///< signed decimal degrees, "." the separator; kept as text, as the store holds it
    QString longitude;
    QString elevation; ///< whole metres
};

/// Rows of a table of eight fields separated by tabs; the first line, a heading, is passed over. Raises "Type
/// mismatch" with the line when a row has another number of fields.
std::vector<AirportRow> parseAirportTable(const QString& text);

} // namespace morvane
