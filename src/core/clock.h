#pragma once

#include <QDateTime>
#include <cstdint>
#include <functional>

namespace morvane {

/// The time of day, asked for through the session so that tests can set it.
class Clock {
public:
    virtual ~Clock() = default;
    virtual QDateTime localTime() const = 0;
    virtual QDateTime utcTime() const = 0;
};

class SystemClock : public Clock {
public:
    QDateTime localTime() const override;
    QDateTime utcTime() const override;
};

/// Uniform numbers, 0 up to but not including 1.
class RandomSource {
public:
    virtual ~RandomSource() = default;
    virtual double draw() = 0;
};

/// Seeds anew at every draw, as the program always did, from a clock fine enough and a draw counter: a coarse
/// clock alone would give all six colours of a set the same fraction.
class ReseedingRandomSource : public RandomSource {
public:
    double draw() override;

private:
    std::uint64_t draws_ = 0;
};

} // namespace morvane
