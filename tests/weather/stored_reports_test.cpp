#include "core/error.h"
#include "core/registry.h"
#include "core/store.h"
#include "support/small_install.h"
#include "weather/airport_report.h"
#include "weather/coordinates.h"
#include "weather/decoded_lines.h"
#include "weather/metar_decoder.h"
#include "weather/nearest_station.h"
#include "weather/report_age.h"
#include "weather/report_filter.h"
#include "weather/report_rows.h"
#include "weather/reports.h"
#include "weather/weather_rows.h"
#include "weather/weather_state.h"

namespace morvane::test {
namespace {

struct WeatherControlTest : InstallTest {
    WeatherControlTest() {
        weather.InhibitWeatherReports = false;
        addStation(session, u"KSEA"_s, 3, 47.45, -122.31);
        addStation(session, u"EHAM"_s, 1, 52.31, 4.76);
    }
    QStringList lines() const {
        const ReportLines& lines = session.state<DecodedReportLines>().decodedMetarLines;
        return {lines.begin(), lines.end()};
    }
    QString reportOf(const QString& icao, const QString& latitude = {}, const QString& longitude = {}) {
        return getMetar(session, {icao, u"A Field"_s, u"A City"_s, {}, {}, latitude, longitude})
            .value_or(u"none"_s);
    }

    WeatherState& weather = session.state<WeatherState>();
};

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
    weather.optDepAirport = false;
    weather.optDestAirport = true;
    EXPECT_TRUE(chooseAirport(session, {u" EHAM "_s, u"SCHIPHOL"_s, {}, {}, {}, {}, {}}));
    EXPECT_EQ((QStringList{weather.DestMetar, weather.DestIcao, weather.DestAirportName}),
              (QStringList{u"EHAM 010000Z 00000KT"_s, u"EHAM"_s, u"SCHIPHOL"_s}));
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

TEST(Coordinates, distances) {
    EXPECT_NEAR(getDistanceNM(52.31, 4.76, 47.45, -122.31), 4231, 4) << "EHAM to KSEA";
    EXPECT_NEAR(getDistanceNM(10, 179.5, 10, -179.5), 59.1, 0.1) << "across the date line";
}

using StoredReports = InstallTest;

TEST_F(StoredReports, whichRowsCountForTheNearestStation) {
    const auto nearest = [&](const QString& latitude, const QString& longitude) {
        return getClosestMetarStation(session, latitude, longitude);
    };
    addStation(session, u"NONE"_s, 3);
    addStation(session, u"FAR1"_s, 3, -10, -170);
    EXPECT_EQ(nearest(u"10"_s, u"10"_s), "") << "only the antipode";
    addStation(session, u"TWIN"_s, 3, 10.5, 10);
    addStation(session, u"ALSO"_s, 3, 9.5, 10);
    EXPECT_EQ(nearest(u"10"_s, u"10"_s), "TWIN") << "the first of equals";
    session.adoConn->execute(u"UPDATE DECODED_METAR SET METAR_LAT = 'x' WHERE METAR_ICAO = 'TWIN'"_s);
    EXPECT_EQ(nearest(u"10"_s, u"10"_s), "ALSO");
    EXPECT_THROW(nearest(u""_s, u"10"_s), Error);
    session.adoConn->execute(
        u"UPDATE DECODED_METAR SET METAR_LAT = '10,4', METAR_LONG = ' 9,75 ' WHERE METAR_ICAO = 'TWIN'"_s);
    for (const QString& separator : {u","_s, u"."_s}) {
        session.DecimalSep = separator;
        EXPECT_EQ(nearest(u"10,3"_s, u"9,7"_s), "TWIN") << "another hand filled these tables with \",\"";
    }
}

QDateTime utc(const QString& text) {
    QDateTime moment = QDateTime::fromString(text, u"yyyy-MM-dd hh:mm"_s);
    moment.setTimeSpec(Qt::UTC);
    return moment;
}

TEST(ReportAge, aReportIsOfTheLastSuchMomentUpToAnHourAhead) {
    const struct {
        QString clock, day, time, moment;
    } cases[] = {
        {u"2026-11-21 03:04"_s, u"21"_s, u"0404"_s, u"2026-11-21 04:04"_s},
        {u"2026-11-21 03:04"_s, u"21"_s, u"0405"_s, u"2026-10-21 04:05"_s},
        {u"2027-03-01 00:10"_s, u"31"_s, u"2350"_s, u"2027-01-31 23:50"_s}, // February has none
        {u"2026-11-21 03:04"_s, u"32"_s, u"0200"_s, {}},
        {u"2026-11-21 03:04"_s, u"21"_s, u"2400"_s, {}},
    };
    for (const auto& [clock, day, time, moment] : cases)
        EXPECT_EQ(observationTime(day, time, utc(clock)).toString(u"yyyy-MM-dd hh:mm"), moment)
            << (clock + u" / "_s + day + time).toStdString();
}

TEST_F(StoredReports, theAgeCountsFromTheYoungestByWhatTheReportsSay) {
    EXPECT_EQ(reportAgeText(session), "No reports yet");
    const auto add = [&](const QString& icao, const QString& day, const QString& time) {
        clsWxFinder report;
        report.WxFinderIcao = icao;
        report.WxFinderDate = day;
        report.WxFinderTime = time;
        storeReport(session, report);
        clsWxFinders::reload(session);
    };
    install.clock.now = utc(u"2026-11-21 03:04"_s);
    add(u"AAAA"_s, {}, {});
    EXPECT_EQ(reportAgeText(session), "1 report, none with a time");
    add(u"CCCC"_s, u"03"_s, u"2350"_s);
    add(u"DDDD"_s, u"21"_s, u"0200"_s);
    add(u"EEEE"_s, u"21"_s, u"0150"_s);
    const std::pair<QString, QString> ages[] = {
        {u"2026-11-21 02:01"_s, u"1 minute"_s},
        {u"2026-11-23 01:59"_s, u"47 hours"_s},
        {u"2026-11-23 02:00"_s, u"2 days"_s},
    };
    for (const auto& [clock, age] : ages) {
        install.clock.now = utc(clock);
        EXPECT_EQ(reportAgeText(session),
                  u"4 reports of 02:00Z, 21 Nov; the youngest is "_s + age + u" old"_s);
    }
    session.state<WeatherState>().NoSourceAnswered = true;
    EXPECT_EQ(reportAgeText(session), u"No source answered; 4 stored reports, the youngest 2 days old"_s);
    const std::pair<QString, QString> reports[] = {
        {u"KSEA 230131Z 24015KT 312359Z"_s, u"01:31Z, 29 minutes old"_s},
        {u"KSEA AUTO 230131Z"_s, u"01:31Z, 29 minutes old"_s},
        {u"230131Z"_s, {}},
        {u"KSEA 320131Z"_s, {}},
        {{}, {}},
    };
    for (const auto& [report, age] : reports)
        EXPECT_EQ(reportAgeText(session, report), age) << report.toStdString();
}

struct WxFilterTest : InstallTest {
    WxFilterTest() {
        // Code, strength, weather, obscuration, clouds.
        for (const QString& line :
             {u"EDDF|Light |Rain||Overcast: Cumulus observed"_s,
              u"EGLL|Moderate |Rain and Snow|Mist|Mostly Cloudy: Cumulonimbus observed"_s,
              u"EHAM||||Sky Clear: Cumulus observed"_s,
              u"KSEA|Heavy |Snow Grains|Fog|Mostly Cloudy: Towering Cumulonimbus observed"_s,
              u"LSZH|||Haze|Partly Cloudy"_s}) {
            const QStringList fields = line.split(u'|');
            clsWxFinder report;
            report.WxFinderIcao = fields[0];
            report.WxFinderMetar = fields[0] + u" 241225Z"_s;
            report.WxFinderWeatherStrength = fields[1];
            report.WxFinderWeather = fields[2];
            report.WxFinderFog = fields[3];
            report.WxFinderCloudCover = fields[4];
            storeReport(session, report);
        }
    }
    /// The first letter of each station found.
    QString found() {
        QString letters;
        for (const auto& finder : filterMetars(session))
            letters += finder->WxFinderIcao.mid(1, 1);
        return letters;
    }

    WxFilter& filter = session.state<WxFilter>();
};

TEST_F(WxFilterTest, whatEachWordFinds) {
    // Precipitation, intensity, obscuration and clouds; the ticks; second letters of the codes.
    const std::tuple<QString, QString, QString> cases[] = {
        {u"Any|Any|Any|Any"_s, {}, u"DGHSS"_s},
        {u"Snow|Any|Any|Any"_s, {}, u"GS"_s}, // which is in snow grains
        {u"None|Any|Any|Any"_s, {}, u"HS"_s},
        {u"Rain|Moderate|Any|Any"_s, {}, u"G"_s},
        {u"Any|Any|Any|Sky Clear"_s, u"cumulus"_s, u"H"_s},
        {u"Any|Any|Any|Any"_s, u"cumulonimbus"_s, u"G"_s}, // not towering
        {u"Any|Any|Any|Any"_s, u"towering"_s, u"S"_s},
    };
    for (const auto& [lists, tick, stations] : cases) {
        const QStringList words = lists.split(u'|');
        const bool isTowering = tick == u"towering", isCb = tick == u"cumulonimbus",
                   isCu = tick == u"cumulus";
        filter = {words[0], words[1], words[2], words[3], isTowering, isCb, isCu, {}, 25, true, {}};
        EXPECT_EQ(found(), stations) << (lists + tick).toStdString();
    }
    openWxFilter(session);
    filter.WxFilterText = u"e"_s;
    EXPECT_EQ(found(), u"DGH"_s) << "the code, any weather";
    filter.WxMaxResults = 1;
    EXPECT_EQ(found(), u"D"_s);
}

} // namespace
} // namespace morvane::test
