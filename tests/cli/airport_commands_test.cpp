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
            test::addStation(session, "KSEA", 0, 47.45, -122.31);
            test::addStation(session, "KPDX", 5, 45.59, -122.60);
        });
    }
    test::ConsoleInstall install;
};

TEST_F(AirportCommands, tellOfAirportsStationsAndTheirReports) {
    const QString report = u"EHAM 010000Z 00000KT"_s; // its neighbour's
    test::expectSteps(
        install,
        {{u"metar|show|eham"_s, {u"ICAO Code: EHAM, City: Amsterdam, Airport Name: Schiphol\n"_s, report}},
         {u"metar|show|eham|--json"_s,
          {u"\"icao\":\"EHAM\""_s, u"\"metar\":\""_s + report, u"\"WindDirection\":\"Calm\""_s}},
         {u"metar|show|XXXX"_s, {}, 1}, // neither a report nor a position
         {u"airport|find|eh"_s,
          {u"[{\"city\":\"Amsterdam\",\"country\":\"Netherlands\",\"icao\":\"EHAM\",\"latitude\":\"52.31\",\"longitude\":\"4.76\",\"name\":\"Schiphol\",\"state\":\"\"}]"_s}},
         {u"airport|find|XX"_s, {u"[]"_s}},
         {u"station|nearest|52.31|4.76"_s, {u"\"distanceNM\":24."_s, u"\"icao\":\"EHRD\""_s}}});
    EXPECT_EQ(install.run(u"metar show eham"_s).output.count('\n'), 11);
    const std::pair<QString, int> found[] = {
        {u"airport find K"_s, 100},
        {u"metar find --icao k --max 1"_s, 1},
        {u"metar find --precipitation None --obscuration Any --cover Any --intensity Heavy --max 0"_s, 3},
        {u"metar find --tcu --cb --cu"_s, 0}};
    for (const auto& [command, count] : found)
        EXPECT_EQ(install.run(command).array().size(), count) << command.toStdString();
}

TEST_F(AirportCommands, giveThePlanOverTheStoredWeather) {
    const QString plans = QStringLiteral(MORVANE_DATA_DIR "/plans/");
    test::expectSteps(
        install,
        {{u"plan|--json|"_s + plans + u"c01_own_form_vfr_direct.pln"_s,
          {u"{\"altitude\":"_s, u"\"average\":3,\"class\":3,\"cover\":\"Partly Cloudy\",\"departure\":"_s,
           u"\"destination\":\"Portland International Airport\",\"waypoints\":[{\"airway\":\"\",\"class\":0,"_s}},
         {u"plan|"_s + plans + u"c05_header_only.pln"_s, {u"\"altitude\":\"19000\""_s, u"\"cover\":\"\""_s}},
         {u"plan|"_s + plans + u"fsx fsbuilderror.pln"_s, {}, 1}});
}

} // namespace
} // namespace morvane
