#include "core/run_size.h"

#include "core/literals.h"

#include <algorithm>
#include <cmath>

namespace morvane {

namespace {

/// One digit behind the point below ten, none from there on.
QString shortNumber(double number) {
    const bool hasFraction = number < 9.95 && std::round(number * 10) != std::round(number) * 10;
    return QString::number(number, 'f', hasFraction ? 1 : 0);
}

} // namespace

QString spaceText(std::int64_t bytes) {
    constexpr double mega = 1e6, giga = 1e9;
    const auto amount = static_cast<double>(bytes);
    // What would round to a thousand megabytes is a gigabyte.
    if (amount >= 999.5 * mega) return shortNumber(amount / giga) + u" GB"_s;
    return QString::number(std::max(std::lround(amount / mega), 1L)) + u" MB"_s;
}

QString durationText(double seconds) {
    constexpr double minute = 60, hour = 3600;
    if (seconds < minute / 2) return u"less than a minute"_s;
    const long minutes = std::lround(seconds / minute);
    if (minutes == 1) return u"about 1 minute"_s;
    if (minutes < 90) return u"about "_s + QString::number(minutes) + u" minutes"_s;
    return u"about "_s + shortNumber(seconds / hour) + u" hours"_s;
}

QString RunSize::summary() const {
    const QString free = freeBytes < 0 ? QString() : u" of "_s + spaceText(freeBytes) + u" free"_s;
    return what + u": "_s + durationText(seconds) + u", "_s + spaceText(bytes) + free;
}

QString RunSize::refusal() const {
    return what + u": "_s + spaceText(bytes) + u" needed, "_s + spaceText(freeBytes) + u" free"_s;
}

} // namespace morvane
