#pragma once

#include "core/clock.h"
#include "core/user_interface.h"

#include <optional>

namespace morvane {

/// Bounded random draws, shared by ground, sky and matching. The random source seeds anew at every draw.
class clsNoRepeat {
public:
    clsNoRepeat(UserInterface& user, RandomSource& random) : user_(user), random_(random) {}

    /// A number from `lowValue` up to, and not including, `maxValue`. A bound out of order is told in a
    /// message; nothing then.
    std::optional<int> Non_Repeating_Numbers(int maxValue, int lowValue);

private:
    /// A number from `low` up to, and not including, `high`. Lets messages run.
    float Rnd2(int low, int high);

    UserInterface& user_;
    RandomSource& random_;
};

} // namespace morvane
