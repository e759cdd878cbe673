#include "core/bounded_reading.h"
#include "core/error.h"
#include "core/numbers.h"
#include "core/reading_limits.h"
#include "core/run_size.h"
#include "core/text_collation.h"
#include "support/raised_error.h"
#include "support/temporary_folder.h"
#include "support/testing.h"

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

TEST(ReadingLimits, whatGoesBeyondIsToldInOneLine) {
    const test::TemporaryFolder folder;
    NativeFileSystem files;
    const FilePath file = folder / u"long Ω.txt";
    const auto toldOfSize = [&](qsizetype size) {
        test::writeFile(file, QByteArray(size, 'A'));
        return test::descriptionRaisedBy(
            [&] { EXPECT_EQ(readAtMost(files, file, megabyte, u"a plan"_s).size(), size); });
    };
    EXPECT_EQ(toldOfSize(megabyte), "");
    EXPECT_EQ(toldOfSize(megabyte + 1), "long Ω.txt is far too large for a plan: more than 1 MB");
#ifndef Q_OS_WIN
    EXPECT_THROW(readAtMost(files, FilePath(u"/dev/zero"_s), megabyte, u"a plan"_s), Error) << "without end";
#endif
    const QByteArray longest(longestTextLine, 'A');
    EXPECT_EQ(test::descriptionRaisedBy([&] { requireBoundedLines("\n" + longest + "\n\n" + longest); }), "");
    EXPECT_EQ(test::descriptionRaisedBy([&] { requireBoundedLines("\n" + longest + "A"); }),
              "line 2 has more than 1 MB");
    EXPECT_EQ(test::descriptionRaisedBy([&] { requireBoundedLines(QByteArray(mostTextLines, '\n')); }), "");
    EXPECT_EQ(test::descriptionRaisedBy([&] { requireBoundedLines(QByteArray(mostTextLines + 1, '\n')); }),
              "the file has more than 1,000,000 lines");
    const QByteArray opened(deepestJson - 1, '['), closed(deepestJson - 1, ']');
    EXPECT_TRUE(parseJson(opened + R"(["\"[[", "]", 0])" + closed).isArray());
    EXPECT_EQ(test::descriptionRaisedBy([&] { parseJson(opened + "[{}]" + closed); }),
              "it is nested deeper than 32 brackets");
}

using TextPair = std::pair<const char*, const char*>;

TEST(TextCollation, orderWithoutRegardToCase) {
    // Also letters beyond ASCII whose small one is in it (the Kelvin sign), beyond 16 bits, and no letters.
    const TextPair equal[] = {
        {"jazz", "JAZZ"}, {"", ""},        {"Zürich", "ZÜRICH"},         {"łódź", "ŁÓDŹ"},
        {"жук", "ЖУК"},   {"\u212A", "k"}, {"\U00010400", "\U00010428"}, {"\xff", "\xff"},
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
