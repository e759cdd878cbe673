#include "weather/cover_choice.h"

#include "core/session.h"
#include "simulator/set_matching.h"
#include "support/printing.h"
#include "support/small_install.h"
#include "weather/weather_state.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

struct CoverChoiceTest : testing::Test {
    /// The ways that the user takes, one after another: the method, then whether its screen is confirmed. "0-
    /// 2+" is a cancelled plan and a cover by hand.
    void take(const QString& ways) {
        install.user.onModal = [this, ways, shown = 0](Screen screen) mutable {
            shownScreens << screenName(screen);
            const QString way = ways.section(u' ', shown / 2, shown / 2);
            if (shown++ % 2 == 0)
                session.state<CoverChoice>().coverMethod = way.left(1).toShort();
            else if ((session.state<CoverChoice>().coverConfirmed = way.endsWith(u'+')))
                setCover(session, 5);
        };
    }

    test::SmallInstall install;
    Session& session = install.session;
    QStringList shownScreens;
};

TEST_F(CoverChoiceTest, averagesOfTwoAirports) {
    // 0 is not known; halves go to the even class.
    for (const auto& [departure, destination, cover] :
         {std::tuple(0, 4, 4), {6, 0, 6}, {1, 2, 2}, {2, 3, 2}, {6, 5, 6}})
        EXPECT_EQ(computeAverageCover(departure, destination), cover) << departure << destination;
    EXPECT_EQ(roundedCover(4.9), 4) << "so only a wholly overcast way is overcast";
}

TEST_F(CoverChoiceTest, reportsOfTheAirports) {
    session.state<FlightWeather>().WxCloudList = QStringList{u"3"_s, u"4"_s};
    EXPECT_EQ(takeCoverOfAirports(session), 0);
    EXPECT_EQ(session.state<FlightWeather>().WxCloudList.size(), 2) << "nothing known: the cover stays";
    session.state<WeatherState>().DepMetar = u" EHAM 241225Z 24015KT 9999 FEW030 18/09 Q1012 "_s;
    EXPECT_EQ(takeCoverOfAirports(session), 2);
    session.state<WeatherState>().DestMetar = u"EGLL 241220Z 24015KT 0100 VV001 18/18 Q1012"_s;
    EXPECT_EQ(takeCoverOfAirports(session), 4);
    session.state<WeatherState>().DepMetar.clear();
    EXPECT_EQ(takeCoverOfAirports(session), 6);
    EXPECT_EQ(session.state<FlightWeather>().WxCloudList, QStringList{u"6"_s});
}

TEST_F(CoverChoiceTest, aCancelledWayLeadsBackToTheChoice) {
    take(u"0- 1- 3- 2+"_s);
    selectCloudCoverMethod(session);
    const QString choice = u"frm_Select_CC_Method"_s;
    EXPECT_EQ(shownScreens, (QStringList{choice, u"frm_FlightPlan"_s, choice, u"frm_FromDepDestVal"_s, choice,
                                         u"frm_CC_From_Metar_String"_s, choice, u"frm_CC_From_Option"_s}));
    EXPECT_FALSE(session.state<FlightWeather>().CoverCancelled);
    QStringList often(2000, u"1-"_s);
    take(often.join(u' ') + u" 4"_s);
    selectCloudCoverMethod(session);
    EXPECT_TRUE(session.state<FlightWeather>().CoverCancelled);
}

TEST_F(CoverChoiceTest, aCancelledChoiceEndsTheRoad) {
    take(u"2- 4"_s);
    EXPECT_EQ(flyNow(session).filesCopied, -1);
    EXPECT_TRUE(install.user.told().isEmpty()) << "nothing is asked";
    take(u"2+"_s);
    EXPECT_GT(flyNow(session).filesCopied, 0) << "and the next road is free again";
}

} // namespace
} // namespace morvane
