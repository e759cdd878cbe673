#include "core/error.h"
#include "core/numbers.h"
#include "core/run_size.h"

#include "support/printing.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

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

TEST(RunSize, isToldInRoundNumbers) {
    const std::pair<std::int64_t, QString> sizes[] = {
        {0, "1 MB"}, {999'600'000, "1 GB"}, {5'240'000'000, "5.2 GB"}, {9'990'000'000, "10 GB"}};
    for (const auto& [bytes, text] : sizes)
        EXPECT_EQ(spaceText(bytes), text) << bytes;
    const std::pair<double, QString> times[] = {
        {29, "less than a minute"}, {219, "about 4 minutes"}, {5399, "about 1.5 hours"}};
    for (const auto& [seconds, text] : times)
        EXPECT_EQ(durationText(seconds), text) << seconds;
    EXPECT_TRUE((RunSize{"", 0, 1, -1}.fits())) << "where nobody knows";
}

} // namespace
} // namespace morvane
