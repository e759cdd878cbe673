#include "cli/console.h"
#include "core/store_connection.h"
#include "support/printing.h"
#include "weather/stored_reports.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

TEST(PlanCommand, givesThePlanOverTheStoredWeather) {
    test::ConsoleInstall install;
    connectDatabase(install.session);
    test::addStation(install.session, u"KSEA"_s, 0, 47.45, -122.31);
    test::addStation(install.session, u"KPDX"_s, 5, 45.59, -122.60);
    closeDatabase(install.session);
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
    connectDatabase(install.session);
    for (const QString& icao : {u"EHAM"_s, u"KPDX"_s, u"KSEA"_s})
        test::addStation(install.session, icao, 3);
    closeDatabase(install.session);
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
