#include "sky/sky_strings.h"

#include "core/error.h"
#include "sets/slider_values.h"
#include "sky/sky_groups.h"
#include "sky/sky_install.h"
#include "sky/sky_randomiser.h"
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
    /// The six numbers of every group.
    QStringList drawnNumbers(int cloudIndex, const QString& baseSet) {
        QStringList numbers;
        for (const QString& text : drawSkyStrings(session, cloudIndex, baseSet))
            numbers << text.section(u':', 0, 5);
        return numbers;
    }

    test::SmallInstall install;
    Session& session = install.session;
};

/// Holds many sets against a case, and what their fields reached against the ranges.
class RuleWatch {
public:
    explicit RuleWatch(const RuleCase& rules) : rules_(rules) {
        for (test::SkyRange& range : reached_) {
            range.lowest.fill(999);
            range.highest.fill(-999);
        }
    }
    void look(const QStringList& numbers) {
        for (int group = 1; group <= 10; ++group) {
            const QString& rule = rules_.groups[group - 1];
            if (rule == u"new")
                widen(group, numbers[group - 1]);
            else
                EXPECT_EQ(numbers[group - 1],
                          rule.startsWith(u'=') ? numbers[rule.mid(1).toInt() - 1] : rule);
        }
        shadowsDiffer_ = shadowsDiffer_ || numbers[0] != numbers[1];
    }
    void expectRanges() const {
        for (int group = 1; group <= 10; ++group) {
            if (rules_.groups[group - 1] != u"new") continue;
            const test::SkyRange wanted = test::skyRange(rules_.cloudIndex, rules_.family, group);
            EXPECT_EQ(reached_[static_cast<std::size_t>(group - 1)].lowest, wanted.lowest) << group;
            EXPECT_EQ(reached_[static_cast<std::size_t>(group - 1)].highest, wanted.highest) << group;
        }
        EXPECT_EQ(shadowsDiffer_, rules_.groups[1] == u"new");
    }

private:
    void widen(int group, const QString& numbers) {
        test::SkyRange& range = reached_[static_cast<std::size_t>(group - 1)];
        const QStringList fields = numbers.split(u':');
        for (std::size_t i = 0; i < range.lowest.size(); ++i) {
            const int value = fields[static_cast<qsizetype>(i)].toInt();
            range.lowest[i] = std::min(range.lowest[i], value);
            range.highest[i] = std::max(range.highest[i], value);
        }
    }
    const RuleCase& rules_;
    std::array<test::SkyRange, 10> reached_;
    bool shadowsDiffer_ = false;
};

TEST_F(StringsTest, everyGroupFollowsItsRuleInManySets) {
    install.random.numbers = test::mixedNumbers(99991);
    const QStringList familyA{"Default", "Default Softer", "Horizons", "Pro Sky"},
        familyB{"Sunny", "Tropical"};
    for (const RuleCase& c : ruleCases)
        for (const QString& base : c.family == 'A' ? familyA : familyB) {
            SCOPED_TRACE(testing::Message() << c.cloudIndex << ' ' << base.toStdString());
            RuleWatch watch(c);
            for (int round = 0; round < 700; ++round)
                watch.look(drawnNumbers(c.cloudIndex, base));
            watch.expectRanges();
        }
}

TEST_F(StringsTest, textsAndTableSayTheSame) {
    install.random.numbers = test::mixedNumbers(99991);
    for (const RuleCase& c : ruleCases) {
        const SkyStrings strings =
            drawSkyStrings(session, c.cloudIndex, c.family == 'A' ? u"Horizons"_s : u"Sunny"_s);
        for (const SkyGroupConstants& group : skyGroups()) {
            const QString& text = strings[static_cast<std::size_t>(group.number - 1)];
            const auto read = parseSkyColourString(text);
            const SkyGroup& record =
                skyRecord(session.state<SkyColourTables>().skyTextureGroups, group.number);
            EXPECT_TRUE(text.endsWith(u':' + skyRegionSuffix(group))) << text.toStdString();
            for (const SkyField& field : skyFields())
                EXPECT_EQ(record.*field.value, (*read).*field.value) << text.toStdString();
        }
    }
}

// The generator and the random button are two rule books.
TEST_F(StringsTest, fixedNumbersDifferFromTheRandomButtons) {
    const auto generated = [&](int cloudIndex, int group) {
        return drawnNumbers(cloudIndex, u"Default"_s)[group - 1];
    };
    const auto ofTheButton = [&](int cloudIndex, int group) {
        SliderValues values{};
        randomizeSkyValues(session, cloudIndex, values, u"Default"_s, group);
        return values;
    };
    EXPECT_EQ(generated(2, 3), "30:0:0:0:70:0");
    EXPECT_EQ(ofTheButton(2, 3), (SliderValues{-30, 0, 0, 0, 70, 0}));
    for (const int group : {4, 7}) {
        EXPECT_EQ(generated(1, group), "0:0:0:0:100:0");
        EXPECT_EQ(ofTheButton(1, group), (SliderValues{0, 0, 0, 0, 100, 100}));
    }
}

TEST_F(StringsTest, aBaseSetWithoutRulesGetsItsRegionsAlone) {
    session.state<SkyColourTables>().skyTextureGroups[9].red = 50;
    for (int cloudIndex = 1; cloudIndex <= 4; ++cloudIndex) {
        const SkyStrings strings = drawSkyStrings(session, cloudIndex, u"Overcast"_s);
        EXPECT_EQ(strings[5], "6:31:32");
        EXPECT_EQ(strings[9], "1:32:255");
        EXPECT_EQ(session.state<SkyColourTables>().skyTextureGroups[9].red, 0);
        EXPECT_EQ(session.state<SkyColourTables>().skyTextureGroups[9].PixelY, 255);
    }
    EXPECT_THROW(drawSkyStrings(session, 0, u"Default"_s), Error);
    EXPECT_THROW(drawSkyStrings(session, 6, u"Default"_s), Error);
}

TEST_F(StringsTest, onlyADayHasColours) {
    session.state<SkyColourTables>().skyTextureGroups[9].red = 50;
    for (const QString& text : skyStringsFor(session, u"Sunset"_s, 3, u"Default"_s))
        EXPECT_EQ(text, "0:0:0:0:0:0:0:0:0");
    EXPECT_EQ(session.state<SkyColourTables>().skyTextureGroups[9].red, 50);
    EXPECT_EQ(skyStringsFor(session, u"Day"_s, 3, u"Default"_s)[4], "0:0:0:0:0:0:5:5:32");
}

} // namespace
} // namespace morvane
