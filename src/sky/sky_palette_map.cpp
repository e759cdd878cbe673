#include "sky/sky_palette_map.h"

#include <algorithm>

namespace morvane {

namespace {

struct Cell {
    float low, high; ///< both belong to it
};

// Set down by hand and no formula: there are gaps, cell 14 is short and cell 15 long. To be kept as it is.
constexpr Cell cells[] = {
    {0, 7.5f},        {7.6f, 15},    {15.1f, 23.5f},   {23.6f, 31},   {31.1f, 38.5f},   {38.6f, 46},
    {46.1f, 53.5f},   {53.6f, 61},   {61.1f, 68.5f},   {68.6f, 76},   {76.1f, 83.5f},   {83.6f, 91},
    {91.1f, 98.5f},   {98.6f, 101},  {101.1f, 113.5f}, {113.6f, 121}, {121.1f, 128.5f}, {128.6f, 136},
    {136.1f, 143.5f}, {143.6f, 151}, {151.1f, 158.5f}, {158.6f, 166}, {166.1f, 173.5f}, {173.6f, 181},
    {181.1f, 188.5f}, {188.6f, 196}, {196.1f, 203.5f}, {203.6f, 211}, {211.1f, 218.5f}, {218.6f, 226},
    {226.1f, 233.5f}, {233.6f, 240},
};

int cellAt(float place) {
    const auto holds = [place](const Cell& cell) { return place >= cell.low && place <= cell.high; };
    const auto found = std::find_if(std::begin(cells), std::end(cells), holds);
    return found == std::end(cells) ? 0 : static_cast<int>(found - std::begin(cells)) + 1;
}

} // namespace

float mouseToPixelX(float x) {
    return static_cast<float>(cellAt(x));
}

float mouseToPixelY(float y) {
    const int cell = cellAt(y);
    return cell == 0 ? 0 : static_cast<float>(33 - cell);
}

const SkyGroupConstants* skyGroupAt(float x, float y) {
    const auto column = static_cast<int>(mouseToPixelX(x));
    const auto row = static_cast<int>(mouseToPixelY(y));
    if (column == 0) return nullptr;
    for (const SkyGroupConstants& group : skyGroups())
        if (row == group.y && column >= group.xLow && column <= group.xHigh) return &group;
    return &skyGroups().back();
}

} // namespace morvane
