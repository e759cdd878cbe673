#include "weather/coordinates.h"

#include "core/error.h"
#include "core/numbers.h"

#include <QStringList>
#include <cmath>

namespace morvane {

namespace {

constexpr double degreesPerRadian = 57.29577951, milesPerRadian = 3438.1;

double squaredSineOfHalf(double angle) {
    const double sine = std::sin(angle / 2);
    return sine * sine;
}

} // namespace

std::optional<double> storedDegrees(const QString& text) {
    bool isNumber = false;
    const double degrees = trimmedBlanks(text).replace(u',', u'.').toDouble(&isNumber);
    return isNumber && std::isfinite(degrees) ? std::optional(degrees) : std::nullopt;
}

double requiredDegrees(const QString& text) {
    const auto degrees = storedDegrees(text);
    if (!degrees) throw Error(ErrorCode::typeMismatch);
    return *degrees;
}

void parseLatLong(QString& text) {
    const QStringList parts = text.split(u' ');
    if (parts.size() < 2 || parts[0].isEmpty()) throw Error(ErrorCode::subscript);
    const double degrees = textToNumber(parts[0].mid(1).chopped(parts[0].size() > 1 ? 1 : 0));
    const double minutes = textToNumber(parts[1].left(parts[1].size() - 1));
    const double unsignedDegrees = degrees + minutes / 60;
    const bool isNegative = parts[0].front() == u'W' || parts[0].front() == u'S';
    text = floatText(static_cast<float>(isNegative ? -unsignedDegrees : unsignedDegrees));
}

double getDistanceNM(double latitude1, double longitude1, double latitude2, double longitude2) {
    const double north1 = latitude1 / degreesPerRadian, north2 = latitude2 / degreesPerRadian;
    const double east1 = longitude1 / degreesPerRadian, east2 = longitude2 / degreesPerRadian;
    double x = std::sqrt(squaredSineOfHalf(north1 - north2) +
                         std::cos(north1) * std::cos(north2) * squaredSineOfHalf(east1 - east2));
    if (x >= 1) x = 0.99999999;
    const double angle = 2 * std::atan(x / std::sqrt(1 - x * x));
    return static_cast<double>(static_cast<float>(angle * milesPerRadian));
}

} // namespace morvane
