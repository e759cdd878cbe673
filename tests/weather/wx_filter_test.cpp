#include "weather/wx_filter.h"

#include "core/session.h"
#include "core/store.h"
#include "support/printing.h"
#include "support/small_install.h"
#include "weather/stored_reports.h"
#include "weather/weather_state.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

struct WxFilterTest : testing::Test {
    WxFilterTest() {
        // Code, strength, weather, obscuration, clouds.
        for (const QString& line :
             {u"EDDF|Light |Rain||Overcast: Cumulus observed"_s,
              u"EGLL|Moderate |Rain and Snow|Mist|Mostly Cloudy: Cumulonimbus observed"_s,
              u"EHAM||||Sky Clear: Cumulus observed"_s,
              u"KSEA|Heavy |Snow Grains|Fog|Mostly Cloudy: Towering Cumulonimbus observed"_s,
              u"LSZH|||Haze|Partly Cloudy"_s}) {
            const QStringList fields = line.split(u'|');
            DecodedMetarRow row;
            row.report.WxFinderIcao = fields[0];
            row.report.WxFinderMetar = fields[0] + u" 241225Z"_s;
            row.report.WxFinderWeatherStrength = fields[1];
            row.report.WxFinderWeather = fields[2];
            row.report.WxFinderFog = fields[3];
            row.report.WxFinderCloudCover = fields[4];
            clsWxFinderData(session).insertDecodedMetar(row);
        }
        openWxFilter(session);
    }
    /// The first letter of each station found.
    QString found() {
        QString letters;
        for (const auto& finder : filterMetars(session))
            letters += finder->WxFinderIcao.mid(1, 1);
        return letters;
    }

    test::SmallInstall install;
    Session& session = install.session;
    WxFilter& filter = session.state<WxFilter>();
};

TEST_F(WxFilterTest, whatEachWordFinds) {
    struct Case {
        const char* name;
        std::function<void(WxFilter&)> set;
        QString stations; ///< second letters of the codes
    };
    const Case cases[] = {
        {"any", [](WxFilter&) {}, u"DGHSS"_s},
        {"rain", [](WxFilter& f) { f.precipitation = u"Rain"_s; }, u"DG"_s},
        {"snow is in snow grains", [](WxFilter& f) { f.precipitation = u"Snow"_s; }, u"GS"_s},
        {"no weather", [](WxFilter& f) { f.precipitation = u"None"_s; }, u"HS"_s},
        {"intensity alone", [](WxFilter& f) { f.intensity = u"Heavy"_s; }, u"DGHSS"_s},
        {"moderate rain",
         [](WxFilter& f) {
             f.precipitation = u"Rain"_s;
             f.intensity = u"Moderate"_s;
         },
         u"G"_s},
        {"none has no intensity",
         [](WxFilter& f) {
             f.precipitation = u"None"_s;
             f.intensity = u"Heavy"_s;
         },
         u"HS"_s},
        {"no obscuration", [](WxFilter& f) { f.obscuration = u"None"_s; }, u"DH"_s},
        {"fog", [](WxFilter& f) { f.obscuration = u"Fog"_s; }, u"S"_s},
        {"mostly cloudy", [](WxFilter& f) { f.cloudCover = u"Mostly Cloudy"_s; }, u"GS"_s},
        {"clear with cumulus",
         [](WxFilter& f) {
             f.cloudCover = u"Sky Clear"_s;
             f.cumulus = true;
         },
         u"H"_s},
        {"cumulonimbus, not towering", [](WxFilter& f) { f.cumulonimbus = true; }, u"G"_s},
        {"towering", [](WxFilter& f) { f.towering = true; }, u"S"_s},
        {"both", [](WxFilter& f) { f.towering = f.cumulonimbus = true; }, u"S"_s},
        {"code", [](WxFilter& f) { f.WxFilterText = u"e"_s; }, u"DGH"_s},
        {"one result", [](WxFilter& f) { f.WxMaxResults = 1; }, u"D"_s},
        {"0 results are all", [](WxFilter& f) { f.WxMaxResults = 0; }, u"DGHSS"_s},
    };
    for (const Case& each : cases) {
        filter.WxMaxResults = usualMaxResults;
        openWxFilter(session);
        each.set(filter);
        EXPECT_EQ(found(), each.stations) << each.name;
    }
}

TEST_F(WxFilterTest, theChosenStationBecomesThatEndOfTheFlight) {
    session.adoConn->execute(u"DELETE FROM AIRPORTDATA"_s);
    session.adoConn->execute(
        u"INSERT INTO AIRPORTDATA(ICAO, AIRPORT_NAME, CITY) VALUES ('KSEA', 'Tacoma', 'Seattle')"_s);
    session.state<WeatherState>().optDepAirport = false;
    openWxFilter(session);
    EXPECT_FALSE(filter.WxFinderIsDeparture) << "the end that the page shows";
    session.state<WeatherState>().optDepAirport = true;
    filter.WxSelectedIcao = u"KSEA"_s;
    selectWxAirport(session);
    EXPECT_EQ(session.state<WeatherState>().DestAirportName, "Tacoma");
    EXPECT_EQ(session.state<WeatherState>().DestMetar, "KSEA 241225Z");
    EXPECT_EQ(session.state<WeatherState>().DepMetar, "");
    EXPECT_TRUE(session.state<WeatherState>().optDestAirport && !session.state<WeatherState>().optDepAirport);
    filter.WxSelectedIcao = u"LSZH"_s;
    selectWxAirport(session);
    EXPECT_EQ(install.user.told(),
              QStringList{u"Exclamation|METAR Error!|METAR file cannot be accessed at this time or is not "
                          "available please try again later"_s});
    EXPECT_EQ(session.state<WeatherState>().DestIcao, "KSEA");
}

} // namespace
} // namespace morvane
