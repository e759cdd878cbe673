#include "sets/no_repeat.h"

#include <cmath>

namespace morvane {

namespace {

constexpr int lowestBound = -99;
constexpr int rounds = 5;

} // namespace

float clsNoRepeat::Rnd2(int low, int high) {
    user_.pumpMessages();
    const double drawn = random_.draw() * (static_cast<double>(high) - low) + low;
    // Cut to 32 bits a draw just below the bound would reach it, and an index would leave its list.
    const float value = static_cast<float>(drawn);
    const float bound = static_cast<float>(high);
    return value < bound ? value : std::nextafter(bound, static_cast<float>(low));
}

std::optional<int> clsNoRepeat::Non_Repeating_Numbers(int maxValue, int lowValue) {
    const auto refuse = [this](const QString& text) {
        user_.showMessage({MessageKind::error, u"Morvane Error"_s, text, true, false, false});
        return std::nullopt;
    };
    if (maxValue < lowestBound) return refuse(u"Cannot process values less than - minus one hundred."_s);
    if (lowValue >= maxValue)
        return refuse(u"The lowest possible number is greater than or equal to the maximum value."_s);
    int drawn = 0;
    for (int round = 0; round < rounds; ++round)
        drawn = static_cast<int>(std::floor(Rnd2(lowValue, maxValue))); // the fifth stands
    return drawn;
}

} // namespace morvane
