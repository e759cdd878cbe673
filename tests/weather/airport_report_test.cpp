#include "weather/airport_report.h"

#include "core/store.h"
#include "support/printing.h"
#include "support/small_install.h"
#include "weather/decoded_lines.h"
#include "weather/metar_decoder.h"
#include "weather/stored_reports.h"
#include "weather/weather_state.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

struct WeatherControlTest : testing::Test {
    WeatherControlTest() {
        weather.InhibitWeatherReports = false;
        test::addStation(session, u"KSEA"_s, 3, 47.45, -122.31);
        test::addStation(session, u"EHAM"_s, 1, 52.31, 4.76);
    }
    QStringList lines() const {
        const ReportLines& lines = session.state<DecodedReportLines>().decodedMetarLines;
        return {lines.begin(), lines.end()};
    }
    QString reportOf(const QString& icao, const QString& latitude = {}, const QString& longitude = {}) {
        return getMetar(session, {icao, u"A Field"_s, u"A City"_s, {}, {}, latitude, longitude})
            .value_or(u"none"_s);
    }

    test::SmallInstall install;
    Session& session = install.session;
    WeatherState& weather = session.state<WeatherState>();
};

TEST_F(WeatherControlTest, anAirportWithoutAReportReadsItsNeighboursAsItsOwn) {
    EXPECT_EQ(reportOf(u"ksea"_s), u"KSEA 010000Z 00000KT"_s);
    EXPECT_EQ(reportOf(u" KBFI "_s, u"47.53"_s, u"-122.30"_s), u"KBFI 010000Z 00000KT"_s);
    EXPECT_EQ(lines().first() + u'|' + lines().last(),
              u"ICAO Code: KBFI, City: A City, Airport Name: A Field|KBFI 010000Z 00000KT"_s);
    EXPECT_EQ(reportOf(u"O'HA"_s, u"52"_s, u"5"_s), u"O'HA 010000Z 00000KT"_s);
}

TEST_F(WeatherControlTest, theEndBeingChosenTakesTheReportAndTheReportIsShown) {
    reportOf(u"KSEA"_s);
    EXPECT_EQ(install.user.calls, (QStringList{u"refresh frm_WxControl"_s, u"modal frm_metar"_s}));
    install.user.calls.clear();
    weather.optDepAirport = false;
    weather.optDestAirport = weather.InhibitWeatherReports = true;
    EXPECT_TRUE(chooseAirport(session, {u" EHAM "_s, u"SCHIPHOL"_s, u"AMSTERDAM"_s, {}, {}, {}, {}}));
    EXPECT_EQ(weather.DepMetar, u"KSEA 010000Z 00000KT"_s);
    EXPECT_EQ(weather.DestMetar, u"EHAM 010000Z 00000KT"_s);
    EXPECT_EQ((QStringList{weather.DestIcao, weather.DestAirportName, weather.DestCity, weather.DepIcao}),
              (QStringList{u"EHAM"_s, u"SCHIPHOL"_s, u"AMSTERDAM"_s, QString()}));
    EXPECT_EQ(install.user.calls, QStringList{u"refresh frm_WxControl"_s}) << "inhibited";
}

TEST_F(WeatherControlTest, withoutAReportEverythingStaysAndOneMessageTellsSo) {
    const QString told = u"Exclamation|Metar Error!|The METAR requested cannot be accessed at this time or "
                         u"is not available please try again later"_s;
    storeReport(session, {}); // a line that was no report stands under an empty code
    EXPECT_EQ(reportOf({}, u"47"_s, u"-122"_s), u"none"_s) << "an empty code is no station";
    EXPECT_EQ(reportOf(u"KBFI"_s, u"north"_s, u"-122"_s), u"none"_s);
    session.adoConn->execute(u"UPDATE DECODED_METAR SET METAR_LAT = '', METAR_LONG = ''"_s);
    EXPECT_EQ(reportOf(u"KBFI"_s, u"47"_s, u"-122"_s), u"none"_s) << "nobody has a position";
    EXPECT_FALSE(chooseAirport(session, {u"KBFI"_s, u"BOEING"_s, {}, {}, {}, u"47"_s, u"-122"_s}));
    EXPECT_EQ(install.user.told(), QStringList(4, told));
    EXPECT_EQ(weather.DepMetar + weather.DepAirportName, QString()) << "name and report never part";
}

// The lines, slips and all.

TEST_F(WeatherControlTest, theLinesOfAFullReportAndOfAnEmptyOne) {
    clsWxFinder full = clsDecodeMetar(install.user)
                           .decodeMetarString(u"LOWI 141453Z 24015G025KT 210V270 10SM -RA BR OVC030 18/M01 "
                                              "A2992"_s),
                empty;
    full.WxFinderMetar = u"LOWI 141453Z"_s;
    full.WxFinderMonth = u"June"_s;
    full.WxFinderYear = u"2006"_s;
    empty.WxFinderIcao = u"LOWI"_s;
    empty.WxFinderMetar = u"LOWI NIL"_s;
    empty.WxFinderWeatherStrength = u"Moderate "_s; // of nothing
    const std::pair<clsWxFinder, QString> cases[] = {
        {full, u"Date: 14 June 2006 Time: 1453Z|Wind from: 240 degrees at 015kts, Gusting 025kts, Varying "
               "between 210 degrees and 270 degrees|Visibility: 10 Mile(s)|Precipitation: Light  "
               "Rain|Obscuration: Mist|Sky Conditions: Overcast|Temperature: 18 degree(s) Celcius|Dewpoint: "
               "Minus 01 degree(s) Celcius|Pressure: 29.92 Inches of Mercury|LOWI 141453Z"_s},
        // Month and year are the clock's.
        {empty, u"Date:  May 2007 Time: Z|Wind: No wind data avialable|Visibility: No visibility data "
                "available|Precipitation: No precipitation type recorded|Obscuration: No obscuration "
                "phenomina recorded|Sky Conditions: No cloud data available|Temperature: No temperature "
                "data available|Dewpoint: No Dewpoint data available|Pressure: No Pressure data "
                "available|LOWI NIL"_s}};
    for (const auto& [report, lines] : cases) {
        storeReport(session, report);
        reportOf(u"LOWI"_s);
        EXPECT_EQ(this->lines().sliced(1).join(u'|'), lines);
    }
}

} // namespace
} // namespace morvane
