#include "sky/sky_palette_map.h"

#include "sky/sky_tuning.h"
#include "support/printing.h"

#include <cmath>
#include <gtest/gtest.h>

namespace morvane {
namespace {

/// The cells are 7.5 or 8 wide with gaps of a tenth behind them, and two are of other widths, as ever: the
/// sum holds every end of every cell.
TEST(PaletteMap, everyCellWithItsEndsAndTheGapBehindIt) {
    QByteArray cells;
    for (int twentieth = -20; twentieth <= 4840; ++twentieth) {
        const float place = static_cast<float>(twentieth / 20.0);
        const int column = mouseToPixelX(place), row = mouseToPixelY(place);
        cells.append(static_cast<char>(column));
        EXPECT_EQ(row, column == 0 ? 0 : 33 - column) << place;
    }
    EXPECT_EQ(qChecksum(cells), 22812);
    const std::pair<float, int> ends[] = {
        {0, 1},       {7.5f, 1},    {7.55f, 0}, {7.6f, 2},   {98.6f, 14}, {101, 14}, {101.05f, 0},
        {101.1f, 15}, {113.5f, 15}, {240, 32},  {240.1f, 0}, {-0.1f, 0},  {1e9f, 0}, {std::nanf(""), 0}};
    for (const auto& [place, column] : ends)
        EXPECT_EQ(mouseToPixelX(place), column) << place;
}

constexpr float topRow = 3, secondRow = 228, bottomRow = 237;

TEST(PaletteMap, groupsUnderThePointer) {
    const std::tuple<float, float, int> cases[] = {{3, topRow, 1},     {12, topRow, 2},  {20, topRow, 3},
                                                   {28, topRow, 4},    {35, topRow, 5},  {42, topRow, 6},
                                                   {230, topRow, 6},   {240, topRow, 7}, {120, secondRow, 8},
                                                   {60, bottomRow, 9}, {3, 12, 10},      {120, 222, 10}};
    QByteArray tips;
    for (const auto& [x, y, number] : cases) {
        EXPECT_EQ(skyGroupAt(x, y)->number, number) << x << ' ' << y;
        tips += SkyTuning::tipAt(x, y).value_or(u""_s).toUtf8();
    }
    EXPECT_EQ(qChecksum(tips), 34473)
        << "the tip of dark water speaks of light water, and one has a slip: wanted";
    EXPECT_FALSE(SkyTuning::tipAt(7.55f, topRow)); // the last one stays
}

} // namespace
} // namespace morvane
