#include "core/text_collation.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

using TextPair = std::pair<const char*, const char*>;

TEST(TextCollation, orderWithoutRegardToCase) {
    // Also letters beyond ASCII whose small one is in it (the Kelvin sign), beyond 16 bits, and no letters.
    const TextPair equal[] = {
        {"storm", "STORM"}, {"", ""},        {"Zürich", "ZÜRICH"},         {"łódź", "ŁÓDŹ"},
        {"жук", "ЖУК"},     {"\u212A", "k"}, {"\U00010400", "\U00010428"}, {"\xff", "\xff"},
    };
    for (const auto& [left, right] : equal)
        EXPECT_EQ(compareWithoutCase(left, right), 0) << left << " : " << right;
    // "A" is compared as the small letter. No dictionary's order, but the same everywhere.
    const TextPair rising[] = {{"", "a"}, {"a", "B"}, {"12-Storm", "12-Storms"}, {"_", "A"}, {"Z", "ö"}};
    for (const auto& [left, right] : rising) {
        EXPECT_EQ(compareWithoutCase(left, right), -1) << left << " : " << right;
        EXPECT_EQ(compareWithoutCase(right, left), 1) << right << " : " << left;
    }
    EXPECT_NE(compareWithoutCase("\xe2\x82", "\xe2\x82\xac"), 0); // a letter cut short
}

TEST(TextCollation, patternsOfLike) {
    const TextPair fitting[] = {{"Örebro", "ö%"}, {"Amsterdam", "a%d_m"}, {"abcabd", "%abd"}, {"", "%"},
                                {"Å", "_"},       {"\xc3", "_"}};
    for (const auto& [text, pattern] : fitting)
        EXPECT_TRUE(isLike(text, pattern)) << text << " LIKE " << pattern;
    const TextPair others[] = {{"Amsterdam", "a%d"}, {"", "_"}, {"ab", "_"}};
    for (const auto& [text, pattern] : others)
        EXPECT_FALSE(isLike(text, pattern)) << text << " LIKE " << pattern;
}

} // namespace
} // namespace morvane
