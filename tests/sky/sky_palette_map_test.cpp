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

TEST(PaletteMap, groupsAndTipsUnderThePointer) {
    const QString main = u"This large block of pixels will adjust the main sky colors"_s,
                  water = u"This selection of pixels will create subtle color change on th water"_s,
                  shadow = u"This pixel will adjust the %1 shadowing colors"_s;
    const struct {
        float x, y;
        int group;
        QString tip;
    } cases[] = {
        {3, topRow, 1, shadow.arg(u"ground and aircraft dark")},
        {12, topRow, 2, shadow.arg(u"ground and aircraft light")},
        {20, topRow, 3, shadow.arg(u"cloud dark")},
        {28, topRow, 4, shadow.arg(u"cloud light")},
        {35, topRow, 5, shadow.arg(u"water light")}, // though it is the dark one
        {42, topRow, 6, water},
        {230, topRow, 6, water},
        {240, topRow, 7, shadow.arg(u"water light")},
        {120, secondRow, 8, u"This row of pixels will adjust the high horizon colors"_s},
        {60, bottomRow, 9, u"This row of pixels will adjust the low horizon colors"_s},
        {3, 12, 10, main},
        {120, 222, 10, main},
    };
    for (const auto& [x, y, group, tip] : cases) {
        EXPECT_EQ(skyGroupAt(x, y)->number, group) << x << ' ' << y;
        EXPECT_EQ(SkyTuning::tipAt(x, y).value_or(u""_s), tip) << x << ' ' << y;
    }
    EXPECT_FALSE(SkyTuning::tipAt(7.55f, topRow)); // the last one stays
}

TEST(PaletteMap, gapsBetweenRowsAreSkyAndGapsBetweenColumnsNothing) {
    for (const float gap : {7.55f, 101.05f, 241.0f}) {
        EXPECT_FALSE(skyGroupAt(gap, 3)) << gap;
        EXPECT_EQ(skyGroupAt(3, gap)->number, 10) << gap;
    }
    EXPECT_FALSE(skyGroupAt(7.55f, 7.55f));
}

} // namespace
} // namespace morvane
