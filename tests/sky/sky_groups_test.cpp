#include "sky/sky_groups.h"

#include "core/error.h"
#include "support/printing.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

TEST(SkyGroups, coloursComeFirstAndTheRegionOfTheTableLast) {
    SkyGroup record{9, 9, 9, 1, 2, 3, 4, 5, 6}; // its own region is not asked
    EXPECT_EQ(skyColourString(record, skyGroup(6)), "1:2:3:4:5:6:6:31:32");
    EXPECT_EQ(skyColourString({}, skyGroup(6)), "0:0:0:0:0:0:6:31:32");
    SkyGroup sky;
    sky.red = 12;
    sky.contrast = -5;
    EXPECT_EQ(skyColourString(sky, skyGroup(10)), "0:12:0:0:0:-5:1:32:255");
}

TEST(SkyGroups, aTextIsReadBackFieldByField) {
    const auto record = parseSkyColourString(u"1:-2:3.5:4,25:5:6:7:8:9"_s);
    ASSERT_TRUE(record);
    QList<float> numbers;
    for (const SkyField& field : skyFields())
        numbers << (*record).*field.value;
    // "4,25" is as another language writes it.
    EXPECT_EQ(numbers, (QList<float>{1, -2, 3.5f, 4.25f, 5, 6, 7, 8, 9}));
    EXPECT_FALSE(parseSkyColourString({}));
    EXPECT_FALSE(parseSkyColourString(u"  "_s));
    for (const char* text : {"6:31:32", "1:2:3:4:5:6:7:8", "1:2:3:4:5:6:7:8:x", "1::3:4:5:6:7:8:9"})
        EXPECT_THROW(parseSkyColourString(QString::fromLatin1(text)), Error) << text;
    EXPECT_THROW(skyGroup(0), Error);
    EXPECT_THROW(skyGroup(11), Error);
}

} // namespace
} // namespace morvane
