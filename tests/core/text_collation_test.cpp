#include "core/text_collation.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

TEST(TextCollation, orderWithoutRegardToCase) {
    const struct {
        const char *left, *right;
        int order;
    } cases[] = {
        {"storm", "STORM", 0},
        {"", "", 0},
        {"", "a", -1},
        {"Zürich", "ZÜRICH", 0},
        {"łódź", "ŁÓDŹ", 0},
        {"жук", "ЖУК", 0},
        {"\u212A", "k", 0}, // the Kelvin sign: a letter beyond ASCII whose lower case is in it
        {"a", "B", -1},
        {"B", "a", 1},
        {"_", "A", -1}, // compared as small letters
        {"Z", "ö", -1},
        {"12-Storm", "12-Storms", -1},
        {"\U00010400", "\U00010428", 0}, // letters beyond 16 bits
    };
    for (const auto& [left, right, order] : cases) {
        EXPECT_EQ(compareWithoutCase(left, right), order) << left << " : " << right;
        EXPECT_EQ(compareWithoutCase(right, left), -order) << right << " : " << left;
    }
}

TEST(TextCollation, bytesThatAreNoTextCompareToo) {
    EXPECT_EQ(compareWithoutCase("\xff\xe2", "\xff\xe2"), 0);
    EXPECT_NE(compareWithoutCase("\xe2\x82", "\xe2\x82\xac"), 0);
    EXPECT_TRUE(isLike("\xc3", "_"));
}

TEST(TextCollation, patternsOfLike) {
    const struct {
        const char *text, *pattern;
        bool fits;
    } cases[] = {
        {"Örebro", "ö%", true},
        {"ö", "Ö%", true},
        {"Malmö", "%MÖ", true},
        {"Amsterdam", "a%d_m", true},
        {"Amsterdam", "a%d", false},
        {"abcabd", "%abd", true},
        {"", "%", true},
        {"", "", true},
        {"", "_", false},
        {"Å", "_", true},
        {"ab", "_", false},
        {"aXbXc", "a%x%c", true},
        {"aXbXc", "%x%x%x%", false},
        {"[a-z]", "[a-z]", true},
        {"a", "[a-z]", false},
        {"100%", "100%%", true},
        {"abc", "abc%%%", true},
    };
    for (const auto& [text, pattern, fits] : cases)
        EXPECT_EQ(isLike(text, pattern), fits) << text << " LIKE " << pattern;
}

} // namespace
} // namespace morvane
