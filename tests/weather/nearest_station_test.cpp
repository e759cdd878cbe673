#include "weather/nearest_station.h"

#include "core/error.h"
#include "core/store.h"
#include "support/printing.h"
#include "support/small_install.h"
#include "weather/coordinates.h"
#include "weather/stored_reports.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

TEST(Coordinates, distances) {
    EXPECT_NEAR(getDistanceNM(52.31, 4.76, 47.45, -122.31), 4231, 4) << "EHAM to KSEA";
    EXPECT_NEAR(getDistanceNM(10, 179.5, 10, -179.5), 59.1, 0.1) << "across the date line";
}

TEST(NearestStation, whichRowsCount) {
    test::SmallInstall install;
    Session& session = install.session;
    const auto nearest = [&](const QString& latitude, const QString& longitude) {
        return getClosestMetarStation(session, latitude, longitude);
    };
    test::addStation(session, u"NONE"_s, 3);
    test::addStation(session, u"FAR1"_s, 3, -10, -170);
    EXPECT_EQ(nearest(u"10"_s, u"10"_s), "") << "only the antipode";
    test::addStation(session, u"TWIN"_s, 3, 10.5, 10);
    test::addStation(session, u"ALSO"_s, 3, 9.5, 10);
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

} // namespace
} // namespace morvane
