#include "sky/sky_palette_map.h"

#include "sky/sky_tuning.h"
#include "support/printing.h"

#include <QPoint>
#include <cmath>
#include <gtest/gtest.h>

namespace morvane {
namespace {

struct Interval {
    double low, high;
};
constexpr Interval intervals[] = {
    {0, 7.5},       {7.6, 15},    {15.1, 23.5},   {23.6, 31},   {31.1, 38.5},   {38.6, 46},
    {46.1, 53.5},   {53.6, 61},   {61.1, 68.5},   {68.6, 76},   {76.1, 83.5},   {83.6, 91},
    {91.1, 98.5},   {98.6, 101},  {101.1, 113.5}, {113.6, 121}, {121.1, 128.5}, {128.6, 136},
    {136.1, 143.5}, {143.6, 151}, {151.1, 158.5}, {158.6, 166}, {166.1, 173.5}, {173.6, 181},
    {181.1, 188.5}, {188.6, 196}, {196.1, 203.5}, {203.6, 211}, {211.1, 218.5}, {218.6, 226},
    {226.1, 233.5}, {233.6, 240},
};

TEST(PaletteMap, everyCellWithItsEndsAndTheGapBehindIt) {
    int cell = 0;
    for (const Interval& interval : intervals) {
        ++cell;
        for (const double place : {interval.low, (interval.low + interval.high) / 2, interval.high}) {
            EXPECT_EQ(mouseToPixelX(static_cast<float>(place)), cell) << place;
            EXPECT_EQ(mouseToPixelY(static_cast<float>(place)), 33 - cell) << place;
        }
        EXPECT_EQ(mouseToPixelX(static_cast<float>(interval.high + 0.05)), 0) << interval.high;
        EXPECT_EQ(mouseToPixelY(static_cast<float>(interval.high + 0.05)), 0) << interval.high;
    }
    EXPECT_EQ(cell, 32);
    for (const float outside : {-0.1f, 240.1f, 1e9f, std::nanf("")}) {
        EXPECT_EQ(mouseToPixelX(outside), 0) << outside;
        EXPECT_EQ(mouseToPixelY(outside), 0) << outside;
    }
}

/// The middle of a column, or of a row counted from the bottom.
float middle(int cell) {
    return static_cast<float>((intervals[cell - 1].low + intervals[cell - 1].high) / 2);
}
float middleOfRow(int row) {
    return middle(33 - row);
}

TEST(PaletteMap, groupUnderEachPixel) {
    for (int column = 1; column <= 32; ++column)
        for (int row = 1; row <= 32; ++row) {
            int expected = 10;
            if (row == 32) expected = column <= 5 ? column : column == 32 ? 7 : 6;
            if (row == 2) expected = 8;
            if (row == 1) expected = 9;
            const auto* group = skyGroupAt(middle(column), middleOfRow(row));
            ASSERT_TRUE(group);
            EXPECT_EQ(group->number, expected) << column << ' ' << row;
        }
    EXPECT_EQ(skyGroupAt(100, 3)->number, 6);
    EXPECT_EQ(skyGroupAt(240, 3)->number, 7);
    EXPECT_EQ(skyGroupAt(60, 237)->number, 9);
}

TEST(PaletteMap, gapsBetweenRowsAreSkyAndGapsBetweenColumnsNothing) {
    for (const float gap : {7.55f, 101.05f, 241.0f}) {
        EXPECT_FALSE(skyGroupAt(gap, 3)) << gap;
        EXPECT_EQ(skyGroupAt(3, gap)->number, 10) << gap;
    }
    EXPECT_FALSE(skyGroupAt(7.55f, 7.55f));
}

TEST(PaletteMap, tipsTellWhatLiesUnderThePointer) {
    const std::pair<QPoint, QString> tips[] = {
        {{1, 32}, u"This pixel will adjust the ground and aircraft dark shadowing colors"_s},
        {{2, 32}, u"This pixel will adjust the ground and aircraft light shadowing colors"_s},
        {{3, 32}, u"This pixel will adjust the cloud dark shadowing colors"_s},
        {{4, 32}, u"This pixel will adjust the cloud light shadowing colors"_s},
        {{5, 32}, u"This pixel will adjust the water light shadowing colors"_s}, // though it is the dark one
        {{6, 32}, u"This selection of pixels will create subtle color change on th water"_s},
        {{31, 32}, u"This selection of pixels will create subtle color change on th water"_s},
        {{32, 32}, u"This pixel will adjust the water light shadowing colors"_s},
        {{17, 2}, u"This row of pixels will adjust the high horizon colors"_s},
        {{17, 1}, u"This row of pixels will adjust the low horizon colors"_s},
        {{17, 3}, u"This large block of pixels will adjust the main sky colors"_s},
        {{1, 31}, u"This large block of pixels will adjust the main sky colors"_s},
    };
    for (const auto& [pixel, tip] : tips)
        EXPECT_EQ(SkyTuning::tipAt(middle(pixel.x()), middleOfRow(pixel.y())).value_or(u""_s), tip);
    EXPECT_FALSE(SkyTuning::tipAt(7.55f, 3)); // the last one stays
}

} // namespace
} // namespace morvane
