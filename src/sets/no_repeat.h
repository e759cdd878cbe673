#pragma once

#include "core/clock.h"
#include "core/user_interface.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace morvane {

/// Bounded random draws, shared by ground, sky and matching. The random source seeds anew at every draw.
class clsNoRepeat {
public:
    clsNoRepeat(UserInterface& user, RandomSource& random) : user_(user), random_(random) {}

    /// Draws `count` numbers from `lowValue` up to, and not including, `maxValue`. Only a count of 1 is used
    /// by the program; above that a low value of 0 or more gives that value over and over: wanted as it
    /// stands. A bound out of order is told in a message. The numbers, or nothing when there was no success.
    std::optional<std::vector<int>> Non_Repeating_Numbers(int count, int maxValue, int lowValue,
                                                          bool sortResult = false);
    void Mix_The_Numbers(std::vector<int>& numbers);
    /// Sorts `numbers[first..last]`, bounds inclusive.
    static void QuickSort(std::vector<int>& numbers, int first, int last);
    /// A number from `low` up to, and not including, `high`. Lets messages run.
    float Rnd2(int low, int high);

private:
    std::vector<int> drawMany(int count, int maxValue, int lowValue, bool sortResult);
    int drawFloor(int low, int high);
    UserInterface& user_;
    RandomSource& random_;
};

} // namespace morvane
