#include "simulator/set_matching.h"

#include "core/error.h"
#include "core/store.h"
#include "ground/ground_selection.h"
#include "sets/cloud_cover.h"
#include "sky/sky_selection.h"
#include "sky/sky_sets.h"
#include "support/printing.h"
#include "support/small_install.h"
#include "weather/cover_choice.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::SmallInstall;

struct SetMatchingTest : testing::Test {
    SmallInstall install;
    Session& session = install.session;

    /// One sky for each cover, so that nothing is said of skies and none is drawn.
    void addSkies() {
        for (int number = 1; number <= cloudCoverCount; ++number)
            install.addSkySet(cloudCover(number)->code, cloudCover(number)->word, true);
    }
    /// Sets of their names and covers, all activated.
    void addSets(const std::vector<std::pair<QString, QString>>& sets) {
        for (const auto& [name, cover] : sets)
            install.addGroundSet(name, cover, true, {u"Texture\\029h2su6.bmp"_s});
    }
    /// Writes a set's activation. "Default" is an activated one for "Partly Cloudy"; some searches need it
    /// away.
    void setActivation(const QString& name, const QString& word) {
        const QString statement = u"UPDATE TEXTURE_SETS SET ACTIVATED = '%1' WHERE TEXTURE_SET = '%2'"_s;
        session.adoConn->execute(statement.arg(word, name));
        install.reload();
    }
    QString matchedSky(const QString& cover) {
        SetMatching(session).installMatchingSets(cover);
        const QStringList installed = install.installedSkySets();
        EXPECT_EQ(installed, QStringList{session.state<SkySelection>().SelectedSkySet})
            << cover.toStdString();
        return installed.value(0);
    }
    QString matched(const QString& cover) {
        SetMatching(session).installMatchingSets(cover);
        const QStringList installed = install.installedSets();
        EXPECT_EQ(installed, QStringList{session.state<GroundSelection>().SelectedGroundSet})
            << cover.toStdString();
        return installed.value(0);
    }
};

TEST_F(SetMatchingTest, candidatesAreDrawnButNeverTheLast) {
    struct Case {
        QString cover;
        double draw;
        QString expected;
    };
    addSkies();
    addSets({{u"A"_s, u"Overcast"_s},
             {u"B"_s, u" Overcast "_s},
             {u"C"_s, u"Overcast"_s},
             {u"D"_s, u"Sky Clear"_s},
             {u"E"_s, u"Sky Clear"_s},
             {u"F"_s, u"Mostly Clear"_s},
             {u"G"_s, u"Mostly Clear"_s},
             {u"H"_s, u"Partly Cloudy"_s}});
    setActivation(u"G"_s, u"true"_s); // only the exact word activates
    const Case cases[] = {
        {u"Overcast"_s, 0.49, u"A"_s},         {u"Overcast"_s, 0.5, u"B"_s},
        {u"Overcast"_s, 0.9999999999, u"B"_s}, {u" Overcast"_s, 0.5, u"B"_s},
        {u"Sky Clear"_s, 0.999999, u"D"_s},    {u"Mostly Clear"_s, 0.999999, u"F"_s},
        {u"Partly Cloudy"_s, 0, u"Default"_s}, // of two always the first, and "Default" takes part
    };
    for (const Case& c : cases) {
        install.random.numbers = {c.draw};
        EXPECT_EQ(matched(c.cover), c.expected) << c.draw;
    }
    EXPECT_TRUE(install.user.told().isEmpty());
}

TEST(ClosestCloudCover, isOneStepAwayAndBouncesInTheMiddle) {
    const QString steps[][2] = {{u"Sky Clear"_s, u"Mostly Clear"_s},
                                {u"Mostly Clear"_s, u"Partly Cloudy"_s},
                                {u"Partly Cloudy"_s, u"Mostly Cloudy"_s},
                                {u"Mostly Cloudy"_s, u"Partly Cloudy"_s},
                                {u"Overcast"_s, u"Mostly Cloudy"_s},
                                {u"Foggy"_s, {}},
                                {{}, {}}};
    for (const auto& [word, next] : steps)
        EXPECT_EQ(SetMatching::getClosestCloudCover(word), next) << word.toStdString();
}

TEST_F(SetMatchingTest, theClosestSetWinsWithoutADraw) {
    addSkies();
    setActivation(u"Default"_s, u"False"_s);
    addSets(
        {{u"Rain"_s, u"Mostly Cloudy"_s}, {u"Drizzle"_s, u"Mostly Cloudy"_s}, {u"Sun"_s, u"Sky Clear"_s}});
    EXPECT_EQ(matched(u"Overcast"_s), u"Rain"_s);
    EXPECT_EQ(matched(u"Partly Cloudy"_s), u"Rain"_s);
    EXPECT_EQ(matched(u"Mostly Clear"_s), u"Rain"_s); // two steps up, though "Sky Clear" is one step down
    EXPECT_EQ(install.random.draws, 0);
    EXPECT_EQ(install.user.told().value(0),
              u"Information|No Activated Ground Texture Sets|you have no activated ground texture sets "
              u"equivalent to Overcast MV will now install the closest ground texture set to Overcast"_s);
    EXPECT_EQ(install.user.told().size(), 3);
}

TEST_F(SetMatchingTest, aSearchThatRunsDryGivesDefault) {
    setActivation(u"Default"_s, u"False"_s);
    addSets({{u"Rain"_s, u"Overcast"_s}, {u"Sun"_s, u"Sky Clear"_s}});
    // The walk never comes back to the ends of the scale, however near they are.
    for (const QString& cover : {u"Mostly Clear"_s, u"Partly Cloudy"_s, u"Mostly Cloudy"_s, u"Foggy"_s})
        EXPECT_EQ(matched(cover), u"Default"_s) << cover.toStdString();
    setActivation(u"Rain"_s, u"False"_s);
    EXPECT_EQ(matched(u"Overcast"_s), u"Default"_s);
}

TEST_F(SetMatchingTest, theAverageCountsCloudsAndStrengths) {
    // Clouds, strengths, average. An obscured sky, 6, counts as scattered, and so does everything unknown;
    // halves go to the even number.
    for (const QString& line :
         {u"1||1"_s, u"4||4"_s, u"5||5"_s, u"6||3"_s, u"0||3"_s, u"many||3"_s, u"||3"_s, u" 4 | Light |5"_s,
          u"1|Moderate|2"_s, u"3|Heavy|5"_s, u"3|heavy|3"_s, u"5|Heavy|7"_s, u"1,2|,|2"_s, u"2,3|,|2"_s,
          u"4,5|,|4"_s, u"4,5|,Heavy|6"_s, u"1,1,|,,|2"_s}) {
        const QStringList parts = line.split(u'|');
        session.state<FlightWeather>().WxCloudList = parts[0].split(u',');
        session.state<FlightWeather>().WxStrengthList = parts[1].split(u',');
        EXPECT_EQ(SetMatching(session).getAverageCloudCover(), parts[2].toInt()) << line.toStdString();
    }
    session.state<FlightWeather>().WxCloudList.clear();
    EXPECT_EQ(SetMatching(session).getAverageCloudCover(), 0);
    EXPECT_TRUE(install.user.told().isEmpty());
}

TEST_F(SetMatchingTest, skiesAreDrawnLikeGroundsButNeverTheLast) {
    install.addSkySet(u"A"_s, u"Overcast"_s, true, {u"cloud.bmp"_s});
    install.addSkySet(u"B"_s, u" Overcast"_s, true);
    install.addSkySet(u"C"_s, u"Overcast"_s, true);
    install.addSkySet(u"D"_s, u"Sky Clear"_s, false);
    install.addSkySet(u"E"_s, u"Sky Clear"_s, true);
    addSets({{u"G"_s, u"Overcast"_s}, {u"H"_s, u"Sky Clear"_s}});
    const std::tuple<QString, double, QString> cases[] = {
        {u"Overcast"_s, 0.49, u"A"_s}, {u"Overcast"_s, 0.999999, u"B"_s}, {u"Sky Clear"_s, 0.999999, u"E"_s}};
    for (const auto& [cover, draw, expected] : cases) {
        install.random.numbers = {draw};
        EXPECT_EQ(matchedSky(cover), expected) << draw;
    }
    EXPECT_TRUE(install.user.told().isEmpty());
    EXPECT_EQ(test::readFile(install.simulator() / u"Texture\\cloud.bmp"), "A cloud.bmp");
}

TEST_F(SetMatchingTest, aSkyIsSearchedForWhereTheGroundIsFound) {
    setActivation(u"Default"_s, u"False"_s);
    addSets({{u"Haze"_s, u"Overcast"_s}});
    install.addSkySet(u"Default"_s, u"Partly Cloudy"_s, false);
    install.addSkySet(u"Sun"_s, u"Sky Clear"_s, true);
    EXPECT_EQ(matchedSky(u"Overcast"_s), u"Default"_s);
    install.addSkySet(u"Rain"_s, u"Mostly Cloudy"_s, true);
    EXPECT_EQ(matchedSky(u"Overcast"_s), u"Rain"_s);
    const QString said =
        u"Information|No Activated Sky Texture Sets|you have no activated sky texture sets "
        u"equivalent to Overcast MV will now install the closest sky texture set to Overcast"_s;
    EXPECT_EQ(install.user.told(), QStringList({said, said}));
}

TEST_F(SetMatchingTest, aFarGroundAndAFittingSkyAreToldOfTheGroundOnly) {
    install.addSkySet(u"Rain"_s, u"Overcast"_s, true, {u"cloud.bmp"_s, u"sky.bmp"_s});
    session.state<FlightWeather>().WxCloudList = QStringList{u"5"_s};
    session.state<FlightWeather>().WxStrengthList = QStringList{QString()};
    install.user.answersToGive = {true}; // no flight, no start
    install.user.otherwise = false;
    EXPECT_EQ(flyWithCover(session).filesCopied, 6) << "four of the ground's \"Default\", two of the sky";
    EXPECT_EQ(install.installedSets(), QStringList{u"Default"_s});
    EXPECT_EQ(install.installedSkySets(), QStringList{u"Rain"_s});
    EXPECT_EQ(install.user.countOfKind(MessageKind::information), 1);
    EXPECT_EQ(test::readFile(install.simulator() / u"Uires\\dlgsplash.bmp"), "splash OVC");
    const QStringList files = install.user.calls.filter(u"file Installing"_s);
    EXPECT_EQ(files, QStringList({u"file Installing Partly Cloudy (SCT) ground textures"_s,
                                  u"file Installing Overcast (OVC) sky textures"_s}));
}

TEST(ClosestSet, comparesTheNextWordForTheGroundAndTheCurrentOneForTheSky) {
    using Search = SetMatching::ClosestSearch;
    const std::vector<ActivatedSet> sets{{u"Rain"_s, u"Overcast"_s}, {u"Drizzle"_s, u"Mostly Cloudy"_s}};
    EXPECT_EQ(SetMatching::closestSet(sets, Search::nextWord, u"Overcast"_s), u"Drizzle"_s);
    EXPECT_EQ(SetMatching::closestSet(sets, Search::currentWord, u"Overcast"_s), u"Rain"_s);
    for (const Search search : {Search::nextWord, Search::currentWord}) {
        EXPECT_EQ(SetMatching::closestSet(sets, search, u"Sky Clear"_s), u"Drizzle"_s) << "three words on";
        EXPECT_EQ(SetMatching::closestSet(sets, search, u"Foggy"_s), u"Default"_s);
    }
}

/// A random source that fails, so that the choice of a set does.
struct BrokenRandom : RandomSource {
    double draw() override { throw Error(ErrorCode::overflow); }
};

TEST_F(SetMatchingTest, aFailureIsToldUnderAWordOfItsOwnSpelling) {
    addSets({{u"A"_s, u"Overcast"_s}, {u"B"_s, u"Overcast"_s}, {u"C"_s, u"Overcast"_s}});
    BrokenRandom broken;
    Session failing({install.user, install.files, install.clock, broken, install.registry}, install.home());
    failing.adoConn = std::move(session.adoConn);
    SetMatching(failing).installMatchingSets(u"Overcast"_s);
    EXPECT_EQ(install.user.told(), QStringList{u"Exlamation|getIcaoWxDetails Error|Overflow"_s});
}

TEST(CoverWord, staysInsideTheScale) {
    const QString words[] = {u"Partly Cloudy"_s, u"Sky Clear"_s, u"Mostly Clear"_s, u"Partly Cloudy"_s,
                             u"Mostly Cloudy"_s, u"Overcast"_s,  u"Overcast"_s,     u"Overcast"_s};
    for (int number = 0; number < 8; ++number)
        EXPECT_EQ(SetMatching::coverWord(number), words[number]) << number;
    EXPECT_EQ(SetMatching::coverWord(-1), u"Partly Cloudy"_s);
}

TEST_F(SetMatchingTest, theQuestionNamesItsSourceAndNoInstallsNothing) {
    const QString start = u"Question|Install Textures?|Do you wish Morvane to select and install Ground and "
                          u"Sky Textures to match the weather conditions obtained"_s;
    const auto before = test::contentsBelow(install.simulator());
    install.user.otherwise = false;
    session.state<FlightWeather>().WxCloudList = QStringList{u"5"_s};
    session.state<FlightWeather>().WxStrengthList = QStringList{QString()};
    EXPECT_FALSE(SetMatching(session).askInstallMatchingSets());
    session.CommandLineRun = true;
    EXPECT_FALSE(SetMatching(session).askInstallMatchingSets());
    EXPECT_EQ(install.user.told(), QStringList({start + u"?"_s, start + u" from Active Sky?"_s}));
    EXPECT_TRUE(install.installedSets().isEmpty());
    EXPECT_EQ(test::contentsBelow(install.simulator()), before);
}

TEST_F(SetMatchingTest, aYesInstallsWhatTheWeatherAsksFor) {
    addSkies();
    addSets({{u"Rain"_s, u"Overcast"_s}, {u"Sun"_s, u"Sky Clear"_s}});
    ASSERT_TRUE(processMetarString(session, u"  EHAM 241225Z 24015KT 9999 SKC 18/09 Q1012 "_s));
    EXPECT_EQ(session.state<FlightWeather>().WxCloudList, QStringList{u"1"_s});
    EXPECT_EQ(session.state<FlightWeather>().WxStrengthList, QStringList{QString()});
    EXPECT_EQ(flyWithCover(session).filesCopied, 1);
    EXPECT_EQ(install.installedSets(), QStringList{u"Sun"_s});
    EXPECT_EQ(install.installedSkySets(), QStringList{u"CLR"_s});

    // An obscured sky keeps its 6 in the list and then counts as "Partly Cloudy".
    ASSERT_TRUE(processMetarString(session, u"EHAM 241225Z 24015KT 0100 FG VV001 18/18 Q1012"_s));
    EXPECT_EQ(session.state<FlightWeather>().WxCloudList, QStringList{u"6"_s});
    flyWithCover(session);
    EXPECT_EQ(install.installedSets(), QStringList{u"Default"_s});
    EXPECT_EQ(install.installedSkySets(), QStringList{u"SCT"_s});
}

TEST_F(SetMatchingTest, aReportWithoutCloudsIsRefusedAndLeavesZeroInTheList) {
    for (const QString& metar : {u"EHAM 241225Z 24015KT 9999 18/09 Q1012"_s, u"  "_s, QString()}) {
        session.state<FlightWeather>().WxCloudList = QStringList{u"5"_s, u"5"_s};
        EXPECT_FALSE(processMetarString(session, metar)) << metar.toStdString();
        EXPECT_EQ(session.state<FlightWeather>().WxCloudList, QStringList{u"0"_s});
    }
    EXPECT_EQ(install.user.countOfKind(MessageKind::error), 3);
}

} // namespace
} // namespace morvane
