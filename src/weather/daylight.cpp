#include "weather/daylight.h"

#include <cmath>
#include <numbers>

namespace morvane {

namespace {

constexpr double degree = std::numbers::pi / 180;
constexpr double sunriseAltitude = -50.0 / 60; ///< half the sun's width and the refraction at the horizon

/// Days since 2000-01-01 12:00 UTC.
double daysSince2000(const QDateTime& when) {
    constexpr double dayMilliseconds = 86'400'000;
    const QDateTime start(QDate(2000, 1, 1), QTime(12, 0), Qt::UTC);
    return static_cast<double>(start.msecsTo(when)) / dayMilliseconds;
}

} // namespace

/// By "Low precision formulas for the Sun's coordinates" of The Astronomical Almanac, page C5; sidereal time
/// by page B6.
double sunAltitude(double latitude, double longitude, const QDateTime& when) {
    const double days = daysSince2000(when);
    const double meanLongitude = 280.460 + 0.9856474 * days;
    const double anomaly = (357.528 + 0.9856003 * days) * degree;
    const double ecliptic =
        (meanLongitude + 1.915 * std::sin(anomaly) + 0.020 * std::sin(2 * anomaly)) * degree;
    const double obliquity = (23.439 - 0.0000004 * days) * degree;
    const double ascension =
        std::atan2(std::cos(obliquity) * std::sin(ecliptic), std::cos(ecliptic)); // right ascension
    const double declination = std::asin(std::sin(obliquity) * std::sin(ecliptic));
    const double siderealTime = (280.46062 + 360.98564737 * days + longitude) * degree;
    return std::asin(std::sin(latitude * degree) * std::sin(declination) +
                     std::cos(latitude * degree) * std::cos(declination) *
                         std::cos(siderealTime - ascension)) /
           degree;
}

bool isNightAt(double latitude, double longitude, const QDateTime& when) {
    return sunAltitude(latitude, longitude, when) < sunriseAltitude;
}

} // namespace morvane
