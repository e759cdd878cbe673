#include "weather/report_filter.h"

#include "core/session.h"
#include "support/printing.h"
#include "support/small_install.h"
#include "weather/report_rows.h"
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

    test::SmallInstall install;
    Session& session = install.session;
    WxFilter& filter = session.state<WxFilter>();
};

TEST_F(WxFilterTest, whatEachWordFinds) {
    const struct {
        const char* name;
        QString lists; ///< precipitation, intensity, obscuration and clouds
        bool towering, cumulonimbus, cumulus;
        QString stations; ///< second letters of the codes
    } cases[] = {
        {"any", u"Any|Any|Any|Any"_s, false, false, false, u"DGHSS"_s},
        {"snow is in snow grains", u"Snow|Any|Any|Any"_s, false, false, false, u"GS"_s},
        {"no weather", u"None|Any|Any|Any"_s, false, false, false, u"HS"_s},
        {"moderate rain", u"Rain|Moderate|Any|Any"_s, false, false, false, u"G"_s},
        {"clear with cumulus", u"Any|Any|Any|Sky Clear"_s, false, false, true, u"H"_s},
        {"cumulonimbus, not towering", u"Any|Any|Any|Any"_s, false, true, false, u"G"_s},
        {"towering", u"Any|Any|Any|Any"_s, true, false, false, u"S"_s},
    };
    for (const auto& [name, lists, towering, cumulonimbus, cumulus, stations] : cases) {
        const QStringList words = lists.split(u'|');
        filter = {words[0], words[1], words[2], words[3], towering, cumulonimbus, cumulus, {}, 25, true, {}};
        EXPECT_EQ(found(), stations) << name;
    }
    openWxFilter(session);
    filter.WxFilterText = u"e"_s;
    EXPECT_EQ(found(), u"DGH"_s) << "the code, any weather";
    filter.WxMaxResults = 1;
    EXPECT_EQ(found(), u"D"_s);
}

} // namespace
} // namespace morvane
