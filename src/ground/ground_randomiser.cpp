#include "ground/ground_randomiser.h"

namespace morvane {

namespace {

enum Field { saturation, red, green, blue, brightness, contrast };

struct Range {
    int cloudNumber;
    Field field;
    int low, high;
};

// In the order of the draws: red, green, blue, brightness, contrast. Saturation is never drawn on the ground.
constexpr Range ranges[] = {
    {1, red, 0, 10},   {1, green, 0, 5},        {1, brightness, 10, 50}, {1, contrast, 0, 30},
    {2, red, 0, 10},   {2, brightness, 0, 20},  {2, contrast, -5, 15},   {3, red, -10, 0},
    {3, blue, -5, 5},  {3, brightness, -5, 5},  {3, contrast, -5, 5},    {4, red, -15, -5},
    {4, blue, 0, 25},  {4, brightness, -5, 5},  {4, contrast, -10, 5},   {5, red, -22, -10},
    {5, blue, 20, 50}, {5, brightness, -10, 0}, {5, contrast, -10, 0},
};

} // namespace

void getRandomGroundValues(Session& session, int cloudNumber, SliderValues& values) {
    values.fill(0);
    for (const Range& range : ranges)
        if (range.cloudNumber == cloudNumber) drawOne(session, range.low, range.high, values[range.field]);
}

} // namespace morvane
