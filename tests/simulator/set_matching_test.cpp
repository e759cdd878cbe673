#include "simulator/set_matching.h"

#include "core/error.h"
#include "core/store.h"
#include "support/printing.h"
#include "support/small_install.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::SmallInstall;

struct SetOfTest {
    QString name, cover;
    bool activated = true;
};

struct SetMatchingTest : testing::Test {
    SmallInstall install;
    Session& session = install.session;

    void addSets(const std::vector<SetOfTest>& sets) {
        for (const SetOfTest& set : sets)
            install.addGroundSet(set.name, set.cover, set.activated, {u"Texture\\029h2su6.bmp"_s});
    }
    /// "Default" is an activated set for "Partly Cloudy" like any other; some searches need it away.
    void deactivateDefault() {
        session.adoConn->execute(
            u"UPDATE TEXTURE_SETS SET ACTIVATED = 'False' WHERE TEXTURE_SET = 'Default'"_s);
        install.reload();
    }
    QString matched(const QString& cover) {
        SetMatching(session).installMatchingSets(cover);
        const QStringList installed = install.installedSets();
        EXPECT_EQ(installed, QStringList{session.ground.SelectedGroundSet}) << cover.toStdString();
        return installed.value(0);
    }
};

TEST_F(SetMatchingTest, candidatesAreDrawnButNeverTheLast) {
    struct Case {
        QString cover;
        double draw;
        QString expected;
    };
    addSets({{u"A"_s, u"Overcast"_s},
             {u"B"_s, u" Overcast "_s},
             {u"C"_s, u"Overcast"_s},
             {u"D"_s, u"Sky Clear"_s},
             {u"E"_s, u"Sky Clear"_s},
             {u"F"_s, u"Mostly Clear"_s},
             {u"G"_s, u"Mostly Clear"_s, false},
             {u"H"_s, u"Partly Cloudy"_s}});
    const Case cases[] = {
        {u"Overcast"_s, 0, u"A"_s},
        {u"Overcast"_s, 0.49, u"A"_s},
        {u"Overcast"_s, 0.5, u"B"_s},
        {u"Overcast"_s, 0.9999999999, u"B"_s},
        {u" Overcast"_s, 0.5, u"B"_s},
        {u"Sky Clear"_s, 0, u"D"_s},
        {u"Sky Clear"_s, 0.999999, u"D"_s},
        {u"Mostly Clear"_s, 0.999999, u"F"_s},
        {u"Partly Cloudy"_s, 0, u"Default"_s}, // of two always the first, and "Default" takes part
    };
    for (const Case& c : cases) {
        install.random.numbers = {c.draw};
        EXPECT_EQ(matched(c.cover), c.expected) << c.draw;
    }
    EXPECT_TRUE(install.user.told().isEmpty());
}

TEST_F(SetMatchingTest, theActivationIsTheExactWord) {
    addSets({{u"A"_s, u"Overcast"_s}, {u"B"_s, u"Overcast"_s}});
    session.adoConn->execute(u"UPDATE TEXTURE_SETS SET ACTIVATED = 'true' WHERE TEXTURE_SET = 'A'"_s);
    install.reload();
    EXPECT_EQ(matched(u"Overcast"_s), u"B"_s);
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
    deactivateDefault();
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
    EXPECT_FALSE(install.user.messages[0].withCancel);
}

TEST_F(SetMatchingTest, aSearchThatRunsDryGivesDefault) {
    deactivateDefault();
    addSets({{u"Rain"_s, u"Overcast"_s}, {u"Mist"_s, u"Mostly Cloudy"_s, false}, {u"Sun"_s, u"Sky Clear"_s}});
    // The walk never comes back to the ends of the scale, however near they are.
    for (const QString& cover : {u"Mostly Clear"_s, u"Partly Cloudy"_s, u"Mostly Cloudy"_s, u"Foggy"_s})
        EXPECT_EQ(matched(cover), u"Default"_s) << cover.toStdString();
    for (const QString& only : {u"Sun"_s, u"Rain"_s}) {
        session.adoConn->execute(
            u"UPDATE TEXTURE_SETS SET ACTIVATED = 'False' WHERE TEXTURE_SET = '%1'"_s.arg(only));
        install.reload();
        EXPECT_EQ(matched(only == u"Sun" ? u"Sky Clear"_s : u"Overcast"_s), u"Default"_s);
    }
}

TEST_F(SetMatchingTest, theAverageCountsCloudsAndStrengths) {
    struct Case {
        QStringList clouds, strengths;
        int average;
    };
    const QString none;
    const Case cases[] = {
        {{u"1"_s}, {none}, 1},
        {{u"2"_s}, {none}, 2},
        {{u"3"_s}, {none}, 3},
        {{u"4"_s}, {none}, 4},
        {{u"5"_s}, {none}, 5},
        {{u"6"_s}, {none}, 3}, // an obscured sky counts as scattered,
        {{u"0"_s}, {none}, 3}, // and so does everything unknown
        {{none}, {none}, 3},
        {{u"many"_s}, {none}, 3},
        {{u" 4 "_s}, {u" Light "_s}, 5},
        {{u"3"_s}, {u"Heavy"_s}, 5},
        {{u"3"_s}, {u"heavy"_s}, 3},
        {{u"1"_s}, {u"Moderate"_s}, 2},
        {{u"5"_s}, {u"Heavy"_s}, 7},
        {{u"1"_s, u"2"_s}, {none, none}, 2}, // halves go to the even number
        {{u"2"_s, u"3"_s}, {none, none}, 2},
        {{u"4"_s, u"5"_s}, {none, none}, 4},
        {{u"4"_s, u"5"_s}, {none, u"Heavy"_s}, 6},
        {{u"1"_s, u"1"_s, none}, {none, none, none}, 2},
        {{}, {}, 0},
    };
    for (const Case& c : cases) {
        session.WxCloudList = c.clouds;
        session.WxStrengthList = c.strengths;
        EXPECT_EQ(SetMatching(session).getAverageCloudCover(), c.average)
            << c.clouds.join(u',').toStdString() << ' ' << c.strengths.join(u',').toStdString();
    }
    EXPECT_TRUE(install.user.told().isEmpty());
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
    session.WxCloudList = QStringList{u"5"_s};
    session.WxStrengthList = QStringList{QString()};
    EXPECT_EQ(flyNow(session), -1);
    session.CommandLineRun = true;
    EXPECT_FALSE(SetMatching(session).askInstallMatchingSets());
    EXPECT_EQ(install.user.told(), QStringList({start + u"?"_s, start + u" from Active Sky?"_s}));
    EXPECT_TRUE(install.installedSets().isEmpty());
    EXPECT_EQ(test::contentsBelow(install.simulator()), before);
}

TEST_F(SetMatchingTest, aYesInstallsWhatTheWeatherAsksFor) {
    addSets({{u"Rain"_s, u"Overcast"_s}, {u"Sun"_s, u"Sky Clear"_s}});
    ASSERT_TRUE(processMetarString(session, u"  EHAM 241225Z 24015KT 9999 SKC 18/09 Q1012 "_s));
    EXPECT_EQ(session.WxCloudList, QStringList{u"1"_s});
    EXPECT_EQ(session.WxStrengthList, QStringList{QString()});
    EXPECT_EQ(flyNow(session), 1);
    EXPECT_EQ(install.installedSets(), QStringList{u"Sun"_s});

    // An obscured sky keeps its 6 in the list and then counts as "Partly Cloudy".
    ASSERT_TRUE(processMetarString(session, u"EHAM 241225Z 24015KT 0100 FG VV001 18/18 Q1012"_s));
    EXPECT_EQ(session.WxCloudList, QStringList{u"6"_s});
    flyNow(session);
    EXPECT_EQ(install.installedSets(), QStringList{u"Default"_s});
}

TEST_F(SetMatchingTest, aReportWithoutCloudsIsRefusedAndLeavesZeroInTheList) {
    for (const QString& metar : {u"EHAM 241225Z 24015KT 9999 18/09 Q1012"_s, u"  "_s, QString()}) {
        session.WxCloudList = QStringList{u"5"_s, u"5"_s};
        EXPECT_FALSE(processMetarString(session, metar)) << metar.toStdString();
        EXPECT_EQ(session.WxCloudList, QStringList{u"0"_s});
    }
    EXPECT_EQ(install.user.told().value(0),
              u"Error|METAR Format Error!|METAR String format not recognised please enter new string to "
              u"process"_s);
    EXPECT_EQ(install.user.told().size(), 3);
}

} // namespace
} // namespace morvane
