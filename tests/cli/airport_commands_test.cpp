#include "cli/console.h"
#include "core/store_connection.h"
#include "support/printing.h"
#include "weather/directory_rows.h"
#include "weather/stored_reports.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

struct AirportCommands : testing::Test {
    AirportCommands() {
        connectDatabase(install.session);
        std::vector<Airport> airports{
            {u"EHAM"_s, u"Schiphol"_s, u"Amsterdam"_s, {}, u"Netherlands"_s, u"52.31"_s, u"4.76"_s}};
        for (int i = 100; i < 250; ++i)
            airports.push_back({u"K%1"_s.arg(i), {}, {}, {}, {}, {}, {}});
        test::addAirports(install.session, airports);
        test::addStation(install.session, u"EHRD"_s, 3, 51.96, 4.44);
        closeDatabase(install.session);
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
    EXPECT_EQ(found[0].toObject(), (QJsonObject{{u"icao"_s, u"EHAM"_s},
                                                {u"name"_s, u"Schiphol"_s},
                                                {u"city"_s, u"Amsterdam"_s},
                                                {u"state"_s, QString()},
                                                {u"country"_s, u"Netherlands"_s},
                                                {u"latitude"_s, u"52.31"_s},
                                                {u"longitude"_s, u"4.76"_s}}));
    EXPECT_EQ(install.run(u"airport find K"_s).array().size(), 100);
    EXPECT_EQ(install.run(u"airport find XX"_s).array().size(), 0);
}

TEST_F(AirportCommands, theNearestStationComesWithItsDistance) {
    const auto run = install.run(u"station nearest 52.31 4.76"_s);
    EXPECT_EQ(run.objects().at(0)[u"icao"], QJsonValue(u"EHRD"_s));
    EXPECT_NEAR(run.objects().at(0)[u"distanceNM"].toDouble(), 24.2, 0.3);
}

} // namespace
} // namespace morvane
