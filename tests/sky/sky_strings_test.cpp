#include "sky/sky_strings.h"

#include "core/error.h"
#include "sky/sky_groups.h"
#include "sky/sky_install.h"
#include "support/printing.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

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

/// Which groups draw, in which order, and which take another's numbers: the sum holds all ten groups of a set
/// whose draws are all different.
TEST_F(StringsTest, everyGroupFollowsItsRule) {
    const struct {
        int cloudIndex;
        int familyA, familyB; ///< sums
    } cases[] = {
        {1, 65409, 55394}, {2, 51212, 57609}, {3, 12433, 4566}, {4, 26304, 34117}, {5, 33039, 33039}};
    const QStringList familyA{"Default", "Default Softer", "Horizons", "Pro Sky"},
        familyB{"Sunny", "Tropical"};
    for (const auto& [cloudIndex, sumOfA, sumOfB] : cases)
        for (const QString& base : familyA + familyB) {
            QStringList sets;
            for (const double end : {0.0, 0.5, 0.99999999}) {
                install.random.numbers = {end};
                sets += drawnNumbers(cloudIndex, base);
            }
            install.random = {};
            install.random.numbers = test::mixedNumbers(99991);
            sets += drawnNumbers(cloudIndex, base);
            EXPECT_EQ(qChecksum(sets.join(u' ').toLatin1()), familyA.contains(base) ? sumOfA : sumOfB)
                << cloudIndex << base.toStdString();
        }
}

TEST_F(StringsTest, textsAndTableSayTheSame) {
    const SkyStrings strings = drawSkyStrings(session, 5, u"Horizons"_s);
    for (const SkyGroupConstants& group : skyGroups()) {
        const QString& text = strings[static_cast<std::size_t>(group.number - 1)];
        const auto read = parseSkyColourString(text);
        EXPECT_TRUE(text.endsWith(u':' + skyRegionSuffix(group))) << text.toStdString();
        for (const SkyField& field : skyFields())
            EXPECT_EQ(skyRecord(session.state<SkyColourTables>().skyTextureGroups, group.number).*field.value,
                      (*read).*field.value);
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

} // namespace
} // namespace morvane
