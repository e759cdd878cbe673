#include "cli/console.h"

#include "support/printing.h"
#include "weather/active_sky.h"
#include "weather/directory_rows.h"
#include "weather/stored_reports.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace morvane::test {
namespace {

TEST(CycleCommands, importAFileInEachForm) {
    ConsoleInstall install;
    expectSteps(install, {{u"metar|import|missing.txt"_s, {}, 1},
                          {u"metar|download"_s, {u"No weather server is set."_s}, 1}});
    EXPECT_EQ(install.run(u"metar rows"_s).output, "");
    const QString sample = QStringLiteral(MORVANE_DATA_DIR "/metar/");
    const std::pair<QStringList, qsizetype> cases[] = {
        {{sample + "Export_Cycle.dat", "asv6"}, 250},
        {{sample + "02Z.TXT", "noaa"}, 611}, // some stations are in both
        {{sample + "02Z.TXT"}, 614},         // and two date lines and an empty line
    };
    for (const auto& [arguments, count] : cases) {
        EXPECT_EQ(install.run("metar import", arguments).status, 0);
        EXPECT_EQ(install.run("metar rows").objects().size(), static_cast<std::size_t>(count));
    }
    const auto rows = install.run(u"metar rows"_s).objects();
    const auto gusty = std::find_if(rows.begin(), rows.end(), [](const QJsonObject& row) {
        return row[u"METAR_WIND_GUSTING"_s].toBool();
    });
    ASSERT_NE(gusty, rows.end());
    EXPECT_TRUE((*gusty)[u"METAR_MAX_CLOUD"_s].isDouble() && (*gusty)[u"METAR_LAT"_s].isNull());
    EXPECT_EQ(gusty->size(), 28) << "every column";
}

TEST(CycleCommands, anActiveSkyOutOfReachFailsThemAlone) {
    ConsoleInstall install;
    install.registry.CreateRegKey(HKEY_LOCAL_MACHINE_ROOT, activeSkyKey);
    install.registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, activeSkyKey, u"Install_Path"_s,
                                  u"\\\\Wx\\ASv6"_s);
    const std::pair<QString, int> cases[] = {
        {u"metar rows"_s, 1}, {u"ground list"_s, 0}, {u"airport find K"_s, 0}, {u"option get halo"_s, 0}};
    for (const auto& [command, status] : cases) {
        const auto run = install.run(command);
        EXPECT_EQ(run.status, status) << command.toStdString();
        EXPECT_EQ(run.messages.count(u"Exclamation: Path not found"_s), status) << run.messages.toStdString();
    }
}

TEST(DecodeCommand, answersEveryLineWhateverItsBytes) {
    const std::pair<QByteArray, QStringList> cases[] = {
        // The station of each object.
        {{}, {}},
        {"EHAM 241225Z", {u"EHAM"_s}}, // without a line end
        {"EHAM 241225Z\r\n\r\n\nKSEA\r\n", {u"EHAM"_s, {}, {}, u"KSEA"_s}},
        {"\xc3\x89HAM 241225Z\n", {u"ÉHAM"_s}},                   // UTF-8
        {"\xc9HAM 241225Z\nCAF\xc9 1\n", {u"ÉHAM"_s, u"CAFÉ"_s}}, // Latin-1
        {QByteArray("EHAM\0Z\n\0\n", 9), {u"EHAM"_s, {}}},        // a NUL is a blank
        {"\357\273\277EHAM\n", {u"EHAM"_s}},                      // a mark of the byte order
        {QByteArray(1 << 20, 'A') + '\n', {QString(1 << 20, u'A')}},
    };
    for (const auto& [input, expected] : cases) {
        const auto run = runConsole(u"decode"_s, {}, input);
        EXPECT_EQ(run.status, 0);
        QStringList stations;
        for (const QJsonObject& report : run.objects())
            stations << report[u"MetarICAO"].toString();
        EXPECT_EQ(stations, expected) << input.left(40).constData();
    }
}

struct AirportCommands : testing::Test {
    AirportCommands() {
        std::vector<Airport> airports{{"EHAM", "Schiphol", "Amsterdam", {}, "Netherlands", "52.31", "4.76"}};
        for (int i = 100; i < 250; ++i)
            airports.push_back({u"K%1"_s.arg(i), {}, {}, {}, {}, {}, {}});
        install.withStore([&](Session& session) {
            addAirports(session, airports);
            addStation(session, "EHRD", 3, 51.96, 4.44);
            addStation(session, "KSEA", 0, 47.45, -122.31);
            addStation(session, "KPDX", 5, 45.59, -122.60);
        });
    }
    ConsoleInstall install;
};

TEST_F(AirportCommands, tellOfAirportsStationsAndTheirReports) {
    const QString report = u"EHAM 010000Z 00000KT"_s; // its neighbour's
    expectSteps(
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
    expectSteps(
        install,
        {{u"plan|--json|"_s + plans + u"c01_own_form_vfr_direct.pln"_s,
          {u"{\"altitude\":"_s, u"\"average\":3,\"class\":3,\"cover\":\"Partly Cloudy\",\"departure\":"_s,
           u"\"destination\":\"Portland International Airport\",\"waypoints\":[{\"airway\":\"\",\"class\":0,"_s}},
         {u"plan|"_s + plans + u"c05_header_only.pln"_s, {u"\"altitude\":\"19000\""_s, u"\"cover\":\"\""_s}},
         {u"plan|"_s + plans + u"fsx fsbuilderror.pln"_s, {}, 1}});
}

} // namespace
} // namespace morvane::test
