#include "support/testing.h"
#include "weather/daylight.h"

#include "core/literals.h"

namespace morvane::test {
namespace {

QDateTime utc(const QString& text) {
    return QDateTime::fromString(text + u'Z', Qt::ISODate);
}

/// Times of PyEphem 4.1, which reckons by a theory of another kind, with its horizon at 50 minutes of arc
/// below.
TEST(DaylightTest, theSunRisesAndSetsAsOtherAlmanacsSay) {
    const struct {
        double latitude, longitude;
        QString rise, set; ///< UTC
    } cases[] = {
        {52.3086, 4.7639, u"2026-03-20T05:43:47"_s, u"2026-03-20T17:54:01"_s},
        {52.3086, 4.7639, u"2026-11-23T07:15:30"_s, u"2026-11-23T15:38:41"_s},
        {47.45, -122.31, u"2026-06-21T12:12:14"_s, u"2026-06-21T04:09:48"_s},
        {-33.946, 151.177, u"2026-12-21T18:41:02"_s, u"2026-12-21T09:05:46"_s},
        {-0.129, -78.358, u"2026-06-21T11:11:52"_s, u"2026-06-21T23:18:44"_s},
        {63.985, -22.606, u"2026-06-21T03:02:01"_s, u"2026-06-21T00:02:16"_s},
        {63.985, -22.606, u"2026-12-21T11:22:12"_s, u"2026-12-21T15:34:50"_s},
    };
    for (const auto& [latitude, longitude, rise, set] : cases)
        for (const int side : {-1, 1}) {
            const int seconds = 45 * side;
            EXPECT_EQ(isNightAt(latitude, longitude, utc(rise).addSecs(seconds)), side < 0)
                << rise.toStdString();
            EXPECT_EQ(isNightAt(latitude, longitude, utc(set).addSecs(seconds)), side > 0)
                << set.toStdString();
        }
}

TEST(DaylightTest, theSunStaysAboveOrBelowBehindThePolarCircles) {
    for (int hour = 0; hour < 24; ++hour) {
        const QDateTime june = utc(u"2026-06-21T00:00:00"_s).addSecs(3600 * hour);
        const QDateTime december = utc(u"2026-12-21T00:00:00"_s).addSecs(3600 * hour);
        EXPECT_FALSE(isNightAt(69.683, 18.919, june) || isNightAt(-77.867, 167.057, december)) << hour;
        EXPECT_TRUE(isNightAt(69.683, 18.919, december) && isNightAt(-77.867, 167.057, june)) << hour;
    }
}

} // namespace
} // namespace morvane::test
