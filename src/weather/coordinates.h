#pragma once

#include <QString>
#include <optional>

namespace morvane {

// Numbers in coordinates are written with "." whatever the user's separator is. Tables that other hands
// filled have "," at times.

/// A stored position, signed decimal degrees with "." or ","; nothing for a text that is no number.
std::optional<double> storedDegrees(const QString& text);
/// The same; raises "Type mismatch" for a text that is no number.
double requiredDegrees(const QString& text);

/// Turns a coordinate of a flight plan, "W122* 18.62'", into signed decimal degrees of up to seven digits,
/// "-122.3103": hemisphere, degrees and a mark of one character, a blank, minutes and a mark. Raises
/// "Subscript out of range" without minutes and "Type mismatch" where a number is none.
void parseLatLong(QString& text);

/// Great-circle distance in nautical miles between two places in degrees, north and east positive, by the
/// haversine form; the result is cut to single precision. Of antipodes it gives a mile less than half way
/// round.
double getDistanceNM(double latitude1, double longitude1, double latitude2, double longitude2);

} // namespace morvane
