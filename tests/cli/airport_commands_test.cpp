#include "cli/console.h"

#include "support/printing.h"
#include "weather/directory_rows.h"
#include "weather/stored_reports.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

struct AirportCommands : testing::Test {
    AirportCommands() {
        std::vector<Airport> airports{{"EHAM", "Schiphol", "Amsterdam", {}, "Netherlands", "52.31", "4.76"}};
        for (int i = 100; i < 250; ++i)
            airports.push_back({u"K%1"_s.arg(i), {}, {}, {}, {}, {}, {}});
        install.withStore([&](Session& session) {
            test::addAirports(session, airports);
            test::addStation(session, "EHRD", 3, 51.96, 4.44);
        });
    }
    test::ConsoleInstall install;
};

TEST_F(AirportCommands, aReportIsShownLineByLine) {
    const auto run = install.run(u"metar show eham"_s);
    EXPECT_EQ(run.status, 0) << run.messages.toStdString();
    const QStringList lines = QString::fromUtf8(run.output).split(u'\n');
    ASSERT_EQ(lines.size(), 12) << run.output.constData();
    EXPECT_EQ(lines[0], u"ICAO Code: EHAM, City: Amsterdam, Airport Name: Schiphol"_s);
    EXPECT_EQ(lines[10], u"EHAM 010000Z 00000KT"_s) << "its neighbour's";
    const QJsonObject report = install.run(u"metar show eham --json"_s).objects().at(0);
    EXPECT_EQ(report[u"lines"_s].toArray().size(), 11);
    EXPECT_EQ(report[u"icao"_s], QJsonValue(u"EHAM"_s));
    EXPECT_EQ(report[u"metar"_s], QJsonValue(lines[10]));
    EXPECT_EQ(report[u"decoded"_s].toObject()[u"WindDirection"_s], QJsonValue(u"Calm"_s));
    EXPECT_EQ(install.run(u"metar show XXXX"_s).status, 1) << "neither a report nor a position";
}

TEST_F(AirportCommands, airportsAreFoundByTheBeginningOfTheirCode) {
    const QJsonArray found = install.run(u"airport find eh"_s).array();
    ASSERT_EQ(found.size(), 1);
    EXPECT_EQ(found[0].toObject(), (QJsonObject{{"icao", "EHAM"},
                                                {"name", "Schiphol"},
                                                {"city", "Amsterdam"},
                                                {"state", ""},
                                                {"country", "Netherlands"},
                                                {"latitude", "52.31"},
                                                {"longitude", "4.76"}}));
    EXPECT_EQ(install.run(u"airport find K"_s).array().size(), 100);
    EXPECT_EQ(install.run(u"airport find XX"_s).array().size(), 0);
}

TEST_F(AirportCommands, theNearestStationComesWithItsDistance) {
    const auto run = install.run(u"station nearest 52.31 4.76"_s);
    EXPECT_EQ(run.objects().at(0)[u"icao"], QJsonValue(u"EHRD"_s));
    EXPECT_NEAR(run.objects().at(0)[u"distanceNM"].toDouble(), 24.2, 0.3);
}

TEST(PlanCommand, givesThePlanOverTheStoredWeather) {
    test::ConsoleInstall install;
    install.withStore([](Session& session) {
        test::addStation(session, "KSEA", 0, 47.45, -122.31);
        test::addStation(session, "KPDX", 5, 45.59, -122.60);
    });
    const QString plans = QStringLiteral(MORVANE_DATA_DIR "/plans/");
    const auto run = install.run(u"plan --json"_s, {plans + u"c01_own_form_vfr_direct.pln"_s});
    EXPECT_EQ(run.status, 0);
    const QJsonObject plan = run.objects().at(0);
    EXPECT_EQ(plan.keys().join(u' '), "altitude average class cover departure destination waypoints");
    EXPECT_EQ(plan[u"destination"].toString(), "Portland International Airport");
    EXPECT_EQ(plan[u"average"].toDouble(), 3);
    EXPECT_EQ(plan[u"class"].toInt(), 3);
    EXPECT_EQ(plan[u"cover"].toString(), "Partly Cloudy");
    const QJsonObject first = plan[u"waypoints"].toArray().at(0).toObject();
    EXPECT_EQ(first.keys().join(u' '), "airway class latitude longitude name type");
    EXPECT_EQ(first[u"class"].toInt(), 0) << "as stored, though it counts as 1";
    const QJsonObject empty = install.run(u"plan"_s, {plans + u"c05_header_only.pln"_s}).objects().at(0);
    EXPECT_EQ(empty[u"cover"].toString() + empty[u"altitude"].toString(), "19000");
    EXPECT_EQ(install.run(u"plan"_s, {plans + u"fsx fsbuilderror.pln"_s}).status, 1);
    EXPECT_EQ(install.run(u"plan"_s, {plans + u"missing.pln"_s}).status, 1);
}

TEST(MetarFindCommand, takesTheFiltersByName) {
    test::ConsoleInstall install;
    install.withStore([](Session& session) {
        for (const QString& icao : {u"EHAM"_s, u"KPDX"_s, u"KSEA"_s})
            test::addStation(session, icao, 3);
    });
    const std::pair<QString, QStringList> cases[] = {
        {u"metar find"_s, {u"EHAM"_s, u"KPDX"_s, u"KSEA"_s}},
        {u"metar find --icao k --max 1"_s, {u"KPDX"_s}},
        {u"metar find --precipitation None --obscuration Any --cover Any --intensity Heavy --max 0"_s,
         {u"EHAM"_s, u"KPDX"_s, u"KSEA"_s}},
        {u"metar find --tcu --cb --cu"_s, {}},
    };
    for (const auto& [command, expected] : cases) {
        const auto run = install.run(command);
        EXPECT_EQ(run.status, 0);
        QStringList stations;
        for (const QJsonValue& report : run.array())
            stations << report[u"WxFinderIcao"].toString();
        EXPECT_EQ(stations, expected) << command.toStdString();
    }
}

} // namespace
} // namespace morvane
