#include "sky/sky_strings.h"

#include "core/error.h"
#include "sky/sky_groups.h"
#include "sky/sky_install.h"
#include "sky/sky_ranges.h"
#include "support/printing.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

/// What becomes of a group: "new" for a draw of its own, "=8" for the numbers of group 8, or the numbers.
struct RuleCase {
    int cloudIndex;
    char family;
    QStringList groups;
};

const QString zero = u"0:0:0:0:0:0"_s;

const RuleCase ruleCases[] = {
    {1,
     'A',
     {"0:0:0:0:100:100", "0:0:0:0:100:100", "0:0:0:-25:100:90", "0:0:0:0:100:0", zero, zero, "0:0:0:0:100:0",
      "new", "=8", "=8"}},
    {1, 'B', {zero, zero, zero, zero, zero, zero, zero, "new", "=8", "=8"}},
    {2, 'A', {"new", "=1", "30:0:0:0:70:0", "new", zero, zero, "=4", "new", "=8", "=8"}},
    {2, 'B', {"new", "=1", zero, zero, zero, zero, zero, "new", "=8", "=8"}},
    {3, 'A', {"new", "=1", "new", "=3", zero, zero, "=3", "new", "=8", "=8"}},
    {3, 'B', {"new", "=1", "=1", "=1", zero, zero, "=1", "new", "=8", "=8"}},
    {4,
     'A',
     {"new", "new", "0:0:0:0:-30:0", "0:0:0:0:-30:0", zero, zero, "0:0:0:0:-30:0", "new", "=8", "=8"}},
    {4, 'B', {"new", "=1", "=1", "=1", zero, zero, "=1", "new", "=8", "=8"}},
    {5, 'A', {"new", "=1", "new", "=3", zero, zero, "new", "new", "=8", "=8"}},
    {5, 'B', {"new", "=1", "new", "=3", zero, zero, "new", "new", "=8", "=8"}},
};

struct StringsTest : testing::Test {
    /// The six numbers of every group, after the look at their regions and at the table beside them.
    QStringList drawnNumbers(int cloudIndex, const QString& baseSet) {
        const SkyStrings strings = drawSkyStrings(session, cloudIndex, baseSet);
        QStringList numbers;
        for (const SkyGroupConstants& group : skyGroups()) {
            const QString& text = strings[static_cast<std::size_t>(group.number - 1)];
            EXPECT_TRUE(text.endsWith(u':' + skyRegionSuffix(group))) << text.toStdString();
            const SkyGroup& record = skyRecord(session.skyTextureGroups, group.number);
            EXPECT_EQ(skyColourString(record, group), text);
            EXPECT_EQ(record.PixelY, static_cast<float>(group.y));
            EXPECT_EQ(record.PixelXHigh, static_cast<float>(group.xHigh));
            numbers << text.section(u':', 0, 5);
        }
        return numbers;
    }

    test::SmallInstall install;
    Session& session = install.session;
};

/// How often two groups of their own draws had other numbers, and what their fields reached.
struct Seen {
    test::SkyRange reached{{999, 999, 999, 999, 999, 999}, {-999, -999, -999, -999, -999, -999}};
    void add(const QString& numbers) {
        for (std::size_t i = 0; i < 6; ++i) {
            const int value = numbers.split(u':')[static_cast<qsizetype>(i)].toInt();
            reached.lowest[i] = std::min(reached.lowest[i], value);
            reached.highest[i] = std::max(reached.highest[i], value);
        }
    }
};

TEST_F(StringsTest, everyGroupFollowsItsRuleInManySets) {
    install.random.numbers = test::mixedNumbers(99991);
    for (const RuleCase& c : ruleCases)
        for (const QString& base : c.family == 'A'
                                       ? QStringList{"Default", "Default Softer", "Horizons", "Pro Sky"}
                                       : QStringList{"Sunny", "Tropical"}) {
            SCOPED_TRACE(testing::Message() << c.cloudIndex << ' ' << base.toStdString());
            std::array<Seen, 10> seen;
            bool neighboursDiffer = false;
            for (int round = 0; round < 700; ++round) {
                const QStringList numbers = drawnNumbers(c.cloudIndex, base);
                for (qsizetype i = 0; i < 10; ++i) {
                    const QString& rule = c.groups[i];
                    if (rule.startsWith(u'='))
                        EXPECT_EQ(numbers[i], numbers[rule.mid(1).toInt() - 1]) << i + 1;
                    else if (rule == u"new"_s)
                        seen[static_cast<std::size_t>(i)].add(numbers[i]);
                    else
                        EXPECT_EQ(numbers[i], rule) << i + 1;
                }
                neighboursDiffer = neighboursDiffer || numbers[0] != numbers[1];
            }
            for (int group = 1; group <= 10; ++group) {
                if (c.groups[group - 1] != u"new"_s) continue;
                const test::SkyRange wanted = test::skyRange(c.cloudIndex, c.family, group);
                EXPECT_EQ(seen[static_cast<std::size_t>(group - 1)].reached.lowest, wanted.lowest) << group;
                EXPECT_EQ(seen[static_cast<std::size_t>(group - 1)].reached.highest, wanted.highest) << group;
            }
            EXPECT_EQ(neighboursDiffer, c.groups[1] == u"new"_s);
        }
}

// The generator's fixed numbers and the random button's are two rule books.
TEST_F(StringsTest, fixedNumbersDifferFromTheRandomButtons) {
    const auto generated = [&](int cloudIndex, int group) {
        return drawnNumbers(cloudIndex, u"Default"_s)[group - 1];
    };
    EXPECT_EQ(generated(2, 3), "30:0:0:0:70:0");
    EXPECT_EQ(test::skyRange(2, 'A', 3).lowest, (SliderValues{-30, 0, 0, 0, 70, 0}));
    EXPECT_EQ(generated(1, 4), "0:0:0:0:100:0");
    EXPECT_EQ(test::skyRange(1, 'A', 4).lowest, (SliderValues{0, 0, 0, 0, 100, 100}));
}

TEST_F(StringsTest, aBaseSetWithoutRulesGetsItsRegionsAlone) {
    session.skyTextureGroups[9].red = 50;
    for (int cloudIndex = 1; cloudIndex <= 4; ++cloudIndex) {
        const SkyStrings strings = drawSkyStrings(session, cloudIndex, u"Overcast"_s);
        EXPECT_EQ(strings[5], "6:31:32");
        EXPECT_EQ(strings[9], "1:32:255");
        EXPECT_EQ(session.skyTextureGroups[9].red, 0);
        EXPECT_EQ(session.skyTextureGroups[9].PixelY, 255);
    }
    EXPECT_THROW(drawSkyStrings(session, 0, u"Default"_s), Error);
    EXPECT_THROW(drawSkyStrings(session, 6, u"Default"_s), Error);
}

TEST_F(StringsTest, onlyADayHasColours) {
    session.skyTextureGroups[9].red = 50;
    for (const QString& text : skyStringsFor(session, u"Sunset"_s, 3, u"Default"_s))
        EXPECT_EQ(text, "0:0:0:0:0:0:0:0:0");
    EXPECT_EQ(session.skyTextureGroups[9].red, 50);
    EXPECT_EQ(skyStringsFor(session, u"Day"_s, 3, u"Default"_s)[4], "0:0:0:0:0:0:5:5:32");
}

} // namespace
} // namespace morvane
