#include "core/clock.h"

#include <chrono>
#include <random>

namespace morvane {

QDateTime SystemClock::localTime() const {
    return QDateTime::currentDateTime();
}

QDateTime SystemClock::utcTime() const {
    return QDateTime::currentDateTimeUtc();
}

double ReseedingRandomSource::draw() {
    const auto ticks = std::chrono::steady_clock::now().time_since_epoch().count();
    const auto fine = static_cast<std::uint64_t>(ticks);
    std::seed_seq seed{static_cast<std::uint32_t>(fine), static_cast<std::uint32_t>(fine >> 32),
                       static_cast<std::uint32_t>(++draws_)};
    std::mt19937 generator(seed);
    return generator() / 4294967296.0;
}

} // namespace morvane
