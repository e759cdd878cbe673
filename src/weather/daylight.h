#pragma once

#include <QDateTime>

namespace morvane {

/// How high the middle of the sun stands over the horizon, without refraction, in degrees; seen from a place
/// in degrees, north and east positive. Right to a hundredth of a degree from 1950 to 2050.
double sunAltitude(double latitude, double longitude, const QDateTime& when);

/// From sunset to sunrise, as almanacs reckon them: with the air's refraction and by the sun's upper edge.
/// There are days without the one or the other behind the polar circles.
bool isNightAt(double latitude, double longitude, const QDateTime& when);

} // namespace morvane
