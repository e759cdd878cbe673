#include "simulator/set_matching.h"

#include "core/error.h"
#include "core/store.h"
#include "ground/ground_selection.h"
#include "sky/sky_selection.h"
#include "sky/sky_sets.h"
#include "support/printing.h"
#include "support/small_install.h"
#include "weather/cover_choice.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::SmallInstall;

using Sets = std::vector<ActivatedSet>; ///< names and covers

struct SetMatchingTest : testing::Test {
    SmallInstall install;
    Session& session = install.session;

    void addGrounds(const Sets& sets) {
        for (const auto& [name, cover] : sets)
            install.addGroundSet(name, cover, true, {"Texture\\029h2su6.bmp"});
    }
    void addSkies(const Sets& sets) {
        for (const auto& [name, cover] : sets)
            install.addSkySet(name, cover, true, {"sky.bmp"});
    }
    /// "Default" is an activated one for "Partly Cloudy"; some searches need it away.
    void setActivation(const QString& name, const QString& word) {
        const QString statement = u"UPDATE TEXTURE_SETS SET ACTIVATED = '%1' WHERE TEXTURE_SET = '%2'"_s;
        session.adoConn->execute(statement.arg(word, name));
        install.reload();
    }
    /// Ground and sky that an install for the cover left.
    QStringList matched(const QString& cover) {
        SetMatching(session).installMatchingSets(cover);
        const QStringList chosen{session.state<GroundSelection>().SelectedGroundSet,
                                 session.state<SkySelection>().SelectedSkySet};
        EXPECT_EQ(install.installedSets() + install.installedSkySets(), chosen) << cover.toStdString();
        return chosen;
    }
};

TEST_F(SetMatchingTest, candidatesAreDrawnButNeverTheLast) {
    addGrounds({{"A", "Overcast"}, {"B", " Overcast "}, {"C", "Overcast"}, {"G", "Overcast"}});
    setActivation("G", "true"); // only the exact word activates
    addSkies({{"a", "Overcast"}, {"b", " Overcast"}, {"c", "Overcast"}, {"h", "Partly Cloudy"}});
    install.addSkySet("d", "Overcast", false);
    install.random.numbers = {0.49};
    EXPECT_EQ(matched("Overcast"), (QStringList{"A", "a"}));
    install.random.numbers = {0.9999999999};
    EXPECT_EQ(matched(" Overcast"), (QStringList{"B", "b"}));
    EXPECT_EQ(matched("Partly Cloudy"), (QStringList{"Default", "h"})) << "\"Default\" takes part";
    EXPECT_TRUE(install.user.told().isEmpty());
}

/// The ground's search compares the next word, the sky's the present one.
TEST(ClosestSet, isSearchedUpwardsAndNeverBackAtTheEnds) {
    using Search = SetMatching::ClosestSearch;
    const Sets wet{{"Rain", "Overcast"}, {"Drizzle", "Mostly Cloudy"}, {"Sun", "Sky Clear"}},
        ends{wet[0], wet[2]};
    const struct {
        const char* cover;
        const Sets& sets;
        const char *ground, *sky;
    } cases[] = {
        {"Mostly Clear", wet, "Drizzle", "Drizzle"}, // up, though "Sky Clear" is nearer
        {"Sky Clear", wet, "Drizzle", "Sun"},
        {"Mostly Clear", ends, "Default", "Default"}, // however near they are
        {"Foggy", wet, "Default", "Default"},
    };
    for (const auto& [cover, sets, ground, sky] : cases) {
        EXPECT_EQ(SetMatching::closestSet(sets, Search::nextWord, cover), ground) << cover;
        EXPECT_EQ(SetMatching::closestSet(sets, Search::currentWord, cover), sky) << cover;
    }
}

TEST_F(SetMatchingTest, theClosestSetsAreToldAndNotDrawn) {
    setActivation("Default", "False");
    addGrounds({{"Rain", "Mostly Cloudy"}, {"Drizzle", "Mostly Cloudy"}});
    addSkies({{"Sun", "Sky Clear"}, {"Haze", "Mostly Cloudy"}});
    EXPECT_EQ(matched("Overcast"), (QStringList{"Rain", "Haze"}));
    EXPECT_EQ(install.random.draws, 0);
    const QString told =
        "Information|No Activated %1 Texture Sets|you have no activated %2 texture sets equivalent "
        "to Overcast MV will now install the closest %2 texture set to Overcast";
    EXPECT_EQ(install.user.told(), (QStringList{told.arg("Ground", "ground"), told.arg("Sky", "sky")}));
}

TEST_F(SetMatchingTest, theAverageCountsCloudsAndStrengths) {
    // Clouds, strengths, average. An obscured sky, 6, counts as scattered, and so does everything unknown;
    // halves go to the even number.
    for (const QString& line : QStringList{"5||5", "6||3", "many||3", " 4 | Light |5", "1|Moderate|2",
                                           "3|heavy|3", "5|Heavy|7", "1,2|,|2", "2,3|,|2", "4,5|,Heavy|6"}) {
        const QStringList parts = line.split(u'|');
        session.state<FlightWeather>().WxCloudList = parts[0].split(u',');
        session.state<FlightWeather>().WxStrengthList = parts[1].split(u',');
        EXPECT_EQ(SetMatching(session).getAverageCloudCover(), parts[2].toInt()) << line.toStdString();
    }
    EXPECT_EQ(SetMatching::coverWord(7), "Overcast") << "inside the scale";
}

/// A random source that fails, so that the choice of a set does.
struct BrokenRandom : RandomSource {
    double draw() override { throw Error(ErrorCode::overflow); }
};

TEST_F(SetMatchingTest, aFailureIsToldUnderAWordOfItsOwnSpelling) {
    addGrounds({{"A", "Overcast"}, {"B", "Overcast"}, {"C", "Overcast"}});
    BrokenRandom broken;
    Session failing({install.user, install.files, install.clock, broken, install.registry}, install.home());
    failing.adoConn = std::move(session.adoConn);
    SetMatching(failing).installMatchingSets("Overcast");
    EXPECT_EQ(install.user.told(), QStringList{"Exlamation|getIcaoWxDetails Error|Overflow"});
}

} // namespace
} // namespace morvane
