#include "core/error.h"
#include "core/numbers.h"

#include "support/printing.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

TEST(Numbers, roundToNearestTiesToEven) {
    const std::pair<double, int> cases[] = {{2.5, 2}, {3.5, 4}, {-2.5, -2}, {0.5, 0}, {1.4999, 1}};
    for (const auto& [value, rounded] : cases)
        EXPECT_EQ(roundToLong(value), rounded) << value;
    EXPECT_THROW(roundToInteger(32767.5), Error);
    EXPECT_THROW(roundToLong(2147483647.6), Error);
}

TEST(Numbers, floatsAsShortestText) {
    const std::pair<float, QString> cases[] = {
        {7 * 0.2f, "1.4"}, {-0.0f, "0"},       {-1.5f, "-1.5"},          {100.0f, "100"},
        {-8.4f, "-8.4"},   {1e-5f, "0.00001"}, {123456.78f, "123456.8"}, {16777216.0f, "16777216"},
    };
    for (const auto& [value, text] : cases)
        EXPECT_EQ(floatText(value), text);
    EXPECT_EQ(countText(1183) + u' ' + countText(0) + u' ' + countText(1234567), "1,183 0 1,234,567");
    EXPECT_EQ(countText(1, u"file"_s) + u' ' + countText(1183, u"file"_s), "1 file 1,183 files");
}

TEST(Numbers, textsThatAreNumbers) {
    EXPECT_DOUBLE_EQ(textToNumber(" -18.2 "), -18.2);
    for (const char* text : {"", "abc", "1,5", "inf", "nan"})
        EXPECT_THROW(textToNumber(QString::fromLatin1(text)), Error) << text;
    EXPECT_TRUE(isDigits(u"007") && !isDigits(u""));
    EXPECT_FALSE(isDigits(u"٣")); // a digit, but not one of ours
    EXPECT_EQ(trimmedBlanks(u"  a\t "), "a\t");
}

} // namespace
} // namespace morvane
