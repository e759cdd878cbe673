#include "weather/flight_plan.h"

#include "support/printing.h"
#include "support/small_install.h"
#include "weather/cover_choice.h"
#include "weather/sample_reports.h"
#include "weather/stored_reports.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

QString joined(const Waypoint& waypoint) {
    const auto& [name, type, latitude, longitude, airway, cloudClass] = waypoint;
    return QStringList{name, type, latitude, longitude, airway}.join(u'|');
}

struct FlightPlanTest : testing::Test {
    std::optional<FlightPlan> delivered(const QString& name) {
        return readFlightPlan(session, FilePath(QStringLiteral(MORVANE_DATA_DIR "/plans/") + name));
    }
    std::optional<FlightPlan> read(const QByteArray& contents) {
        const FilePath file = install.folder / u"Plän one.pln";
        test::writeFile(file, contents);
        return readFlightPlan(session, file);
    }

    test::SmallInstall install;
    Session& session = install.session;
};

TEST_F(FlightPlanTest, deliveredPlans) {
    struct Case {
        QString file, heading, first, last;
        int count;
    };
    const Case cases[] = {
        {u"TBPBEGCC06R.PLN"_s, u"Grantley Adams Intl>Manchester>41000"_s,
         u"TBPB|Airport|N13* 04.48'|W059* 29.53'|"_s, u"EGCC|Airport|N53* 21.22'|W002* 16.50'|"_s, 11},
        {u"c04_planner_form_south_west_kinds.pln"_s,
         u"Guarulhos (São Paulo)>Ministro Pistarini (Ezeiza)>35000"_s,
         u"SBGR|Airport|S23* 25.88'|W46* 28.20'|"_s, u"SAEZ|Airport|S34* 49.33'|W58* 32.15'|"_s, 5},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.file.toStdString());
        const auto plan = delivered(each.file);
        ASSERT_TRUE(plan);
        EXPECT_EQ(plan->departure + u'>' + plan->destination + u'>' + plan->altitude, each.heading);
        ASSERT_EQ(plan->waypoints.size(), each.count);
        EXPECT_EQ(joined(parseWaypoint(plan->waypoints.front())), each.first);
        EXPECT_EQ(joined(parseWaypoint(plan->waypoints.back())), each.last);
    }
    EXPECT_TRUE(install.user.told().isEmpty());
    EXPECT_FALSE(delivered(u"fsx IFR Vaasa to Arlanda.PLN"_s));
    EXPECT_FALSE(read("waypoint.0=KSEA, A\n  a <?XML x\n"));
    EXPECT_EQ(install.user.told(),
              QStringList(2, u"Exclamation|FSX Flight Plan|FSX flight plan format is not supported by "
                             "Morvane, please try another Flight Plan"_s));
}

TEST_F(FlightPlanTest, linesOfAPlan) {
    const auto plan = read("  departure_name=A=B \r\n\tdestination_name=no\r\n destination_name=C\r\n"
                           " waypoint.0=LEFT\r\nwaypoint.9=first\nwaypoint.1=second\r\nwaypoint.2\r\n");
    ASSERT_TRUE(plan);
    EXPECT_EQ(plan->departure + u'>' + plan->destination + u'>' + plan->altitude, "A=B>C>");
    EXPECT_EQ(plan->waypoints, (QStringList{u"first"_s, u"second"_s, {}})) << "in file order";
    EXPECT_TRUE(read(QByteArray("\0\1\2\xff waypoint=\0", 14))->waypoints.isEmpty()) << "a binary file";
}

TEST_F(FlightPlanTest, layoutsOfAWaypoint) {
    const std::pair<QString, QString> cases[] = {
        {u"YVR, V, N49* 4.63', W123* 8.94', +000017.00, J500"_s, u"YVR|VOR|N49* 4.63'|W123* 8.94'|J500"_s},
        {u"ED, HAM, , HAM, V, N53* 41.14', E10* 12.30', +000187.00, Z10"_s,
         u"HAM|VOR|N53* 41.14'|E10* 12.30'|Z10"_s},
        {u"ED, n, N1* 2.0', E3* 4.0', 0,"_s, u"ED|NDB|N1* 2.0'|E3* 4.0'|"_s}, // a name of two letters
        {u"USER, U, N1* 2.0'"_s, u"USER||N1* 2.0'||"_s},
        {u"AB"_s, u"||||"_s},
    };
    for (const auto& [value, expected] : cases)
        EXPECT_EQ(joined(parseWaypoint(value)), expected) << value.toStdString();
}

TEST_F(FlightPlanTest, weatherOfEachWaypoint) {
    test::addStation(session, u"KSEA"_s, 2, 47.45, -122.31);
    test::addStation(session, u"KPDX"_s, 5, 45.59, -122.60);
    test::addStation(session, u"VVVV"_s, 6, -30, -51);
    test::addStation(session, u"  "_s, 4); // a line that was no report
    const auto weather = processFlightPlan(
        session, {{},
                  {},
                  {},
                  {u"ksea,A,,"_s, u"FIX, I, N45* 50.0', W122* 30.0',"_s, u"S, V, S30* 3.0', W51* 6.0'"_s,
                   u", , , , A, N47* 0.0', W122* 0.0'"_s, u"BAD, I, Nx* 50.0', W122* 30.0'"_s,
                   u"FAR, I, N1e300* 0.0', E999* 0.0'"_s, u"SHORT"_s}});
    QStringList classes;
    for (const Waypoint& waypoint : weather.waypoints)
        classes << QString::number(waypoint.cloudClass);
    EXPECT_EQ(classes.join(u' '), "2 5 6 2 0 0 0");
    EXPECT_FLOAT_EQ(static_cast<float>(weather.average), (2 + 5 + 1 + 2 + 1 + 1 + 1) / 7.0F)
        << "what is not known and what is obscured count as clear here";
    EXPECT_EQ(processFlightPlan(session, {}).coverClass, 0) << "without waypoints there is no cover";
    EXPECT_EQ(session.state<FlightWeather>().WxCloudList, QStringList{u"2"_s});
}

} // namespace
} // namespace morvane
