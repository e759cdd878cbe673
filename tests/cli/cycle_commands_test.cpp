#include "cli/console.h"

#include "support/printing.h"
#include "weather/active_sky.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace morvane {
namespace {

QStringList codesOf(const test::ConsoleRun& run) {
    QStringList codes;
    for (const QJsonObject& row : run.objects())
        codes << row[u"METAR_ICAO"_s].toString();
    codes.sort();
    return codes;
}

TEST(CycleCommands, importAFileInEachForm) {
    test::ConsoleInstall install;
    const QString sample = QStringLiteral(MORVANE_DATA_DIR "/metar/");
    const std::pair<QStringList, qsizetype> cases[] = {
        {{sample + u"Export_Cycle.dat"_s, u"asv6"_s}, 250},
        {{sample + u"02Z.TXT"_s, u"noaa"_s}, 611}, // some stations are in both
        {{sample + u"02Z.TXT"_s}, 614},            // and two date lines and an empty line
    };
    for (const auto& [arguments, count] : cases) {
        const auto run = install.run(u"metar import"_s, arguments);
        EXPECT_EQ(run.status, 0) << run.messages.toStdString();
        EXPECT_EQ(codesOf(install.run(u"metar rows"_s)).size(), count) << arguments.join(u' ').toStdString();
    }
    const auto rows = install.run(u"metar rows"_s).objects();
    const auto gusty = std::find_if(rows.begin(), rows.end(), [](const QJsonObject& row) {
        return row[u"METAR_WIND_GUSTING"_s].toBool();
    });
    ASSERT_NE(gusty, rows.end());
    EXPECT_TRUE((*gusty)[u"METAR_MAX_CLOUD"_s].isDouble() && (*gusty)[u"METAR_LAT"_s].isNull());
    EXPECT_EQ(gusty->size(), 28) << "every column";
}

TEST(CycleCommands, tellWhatCannotBeHad) {
    test::ConsoleInstall install;
    EXPECT_EQ(install.run(u"metar import missing.txt"_s).status, 1);
    const auto run = install.run(u"metar download"_s);
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(run.messages.contains(u"No weather server is set."_s)) << run.messages.toStdString();
    EXPECT_EQ(install.run(u"metar rows"_s).output, "");
}

TEST(CycleCommands, anActiveSkyOutOfReachFailsThemAlone) {
    test::ConsoleInstall install;
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

} // namespace
} // namespace morvane
