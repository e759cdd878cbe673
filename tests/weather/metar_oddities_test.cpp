#include "weather/metar_decoder.h"

#include "support/printing.h"
#include "support/scripted_user.h"

#include <gtest/gtest.h>

// Behaviour that looks like a fault and is wanted: stored rows, lists and the cover rule were built on it.

namespace morvane {
namespace {

class MetarOddities : public testing::Test {
protected:
    void decode(const char* report) { metar.decodeMetarString(QString::fromLatin1(report)); }

    test::ScriptedUser user;
    clsDecodeMetar metar{user};
};

TEST_F(MetarOddities, strengthOfAnEarlierTokenHidesTheNext) {
    decode("EGLL -RA SN");
    EXPECT_EQ(metar.MetarWeatherStrength, "Light ");
    EXPECT_EQ(metar.MetarWeather, "Rain");
}

TEST_F(MetarOddities, unknownFirstPairLeavesAnOpenJoin) {
    decode("EGLL FZRA");
    EXPECT_EQ(metar.MetarWeatherStrength, "Moderate ");
    EXPECT_EQ(metar.MetarWeather, "and Rain");
}

TEST_F(MetarOddities, weatherTextIsNotClearedBetweenTokens) {
    decode("EGLL SN FZRA");
    EXPECT_EQ(metar.MetarWeather, "Snow and Rain");
}

TEST_F(MetarOddities, textOfATokenThatWasNotStoredIsJoined) {
    decode("EGLL SHBR FZRA");
    EXPECT_EQ(metar.MetarWeather, "Shower(s) and Rain");
}

TEST_F(MetarOddities, obscurationTextIsNotClearedBetweenTokens) {
    decode("EGLL HZ SHBR");
    EXPECT_EQ(metar.MetarObscuration, "Haze and Haze Mist");
}

TEST_F(MetarOddities, introductionAloneKeepsItsComma) {
    decode("EGLL BR VC");
    EXPECT_EQ(metar.MetarWeather, "In Vicinity (not at aerodrome),");
    EXPECT_EQ(metar.MetarObscuration, "Mist and In Vicinity (not at aerodrome), ");
}

TEST_F(MetarOddities, vicinityBehindASignIsNoIntroduction) {
    decode("EGLL -VCSH");
    EXPECT_EQ(metar.MetarWeather, "In Vicinity (not at aerodrome) and Shower(s)");
}

TEST_F(MetarOddities, recentWeatherOpensAnObscuration) {
    decode("EGLL RERA SHFG");
    EXPECT_EQ(metar.MetarObscuration, "Recent Weather, Fog");
}

TEST_F(MetarOddities, noCloudDataCountsAsScattered) {
    decode("EGLL FEW020 NCD");
    EXPECT_EQ(metar.MetarMaxCloud, 3);
    EXPECT_EQ(metar.MetarCloud, "No Cloud Data Available");
}

TEST_F(MetarOddities, marksOfLesserLayersCountButNotWithoutALayer) {
    decode("EGLL OVC010 FEW020CB");
    EXPECT_EQ(metar.MetarCloud, "Overcast: Cumulonimbus observed");
    clsDecodeMetar without{user};
    without.decodeMetarString(u"EGLL //////CB"_s);
    EXPECT_EQ(without.MetarCloud, QString());
}

TEST_F(MetarOddities, pressureWordHidesTheTemperatureButIsAPressure) {
    decode("EGLL QNH12 18/11");
    EXPECT_EQ(metar.MetarTemp, QString());
    EXPECT_EQ(metar.MetarPressure, "NH12 Millibars");
}

TEST_F(MetarOddities, anyFiveCharactersWithAnAAreAPressure) {
    decode("EGLL ABOVE A2992");
    EXPECT_EQ(metar.MetarPressure, "BO.VE Inches of Mercury");
}

TEST_F(MetarOddities, milesCarryTheWordMph) {
    decode("KSEA 3SM");
    EXPECT_EQ(metar.MetarVisibilityFormat, "mph");
}

TEST_F(MetarOddities, unknownVerticalVisibilityIsTakenForATemperature) {
    decode("EDDH VV/// 04/02");
    EXPECT_EQ(metar.MetarTemp, "VV");
    EXPECT_EQ(metar.MetarDewpoint, QString());
}

TEST_F(MetarOddities, gustOfATokenWithoutAWindStays) {
    decode("EGLL G20KT 24010KT");
    EXPECT_EQ(metar.WindDirection, "240 degrees");
    EXPECT_EQ(metar.WindGust, "20");
}

} // namespace
} // namespace morvane
