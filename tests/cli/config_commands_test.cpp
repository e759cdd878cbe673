#include "cli/console.h"

#include "core/flights_folder.h"
#include "core/store.h"
#include "support/printing.h"

#include <QDir>
#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::Console;

struct ConfigCommands : testing::Test {
    test::ConsoleInstall install;

    QString stored(const QString& key, const QString& name) {
        return install.registry.GetRegString(HKEY_LOCAL_MACHINE_ROOT, key, name);
    }
    void forget(const QString& key, const QString& name) {
        install.registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, key, name, {});
    }
};

TEST_F(ConfigCommands, theSimulatorIsNamedWithoutAQuestion) {
    forget(simulatorKey, u"EXE Path"_s);
    const QString simulator = install.simulator().native();
    const FilePath own = install.home() / u"Flights";
    install.files.makeFolder(own);
    test::expectSteps(install, {{u"ground|list"_s, {u"config set simulator"_s}, 1},
                                {u"config|set|simulator|"_s + install.home().native(), {}, 1}, // no fs9.exe
                                {u"config|set|flights|"_s + own.native(), {u"own Flights folder"_s}, 1}});
    EXPECT_EQ(stored(morvaneKey, u"NonEnglishPath"_s), QString());
    EXPECT_EQ(stored(simulatorKey, u"EXE Path"_s), QString());

    test::expectSteps(install, {{u"config|set|simulator|"_s + QDir::current().relativeFilePath(simulator),
                                 {u"{\"simulator\":\"%1\"}"_s.arg(simulator)}},
                                {u"ground|list"_s}});
    EXPECT_EQ(stored(simulatorKey, u"EXE Path"_s), simulator);
}

TEST_F(ConfigCommands, everythingIsShownWithoutASimulatorToo) {
    install.run(u"config set runner"_s, {u"wine --quiet"_s});
    install.run(u"option set halo on"_s);
    forget(simulatorKey, u"EXE Path"_s);
    const auto before = test::contentsBelow(install.folder.path());
    const auto run = install.run(u"config show"_s);
    EXPECT_EQ(run.status, 0) << run.messages.toStdString();
    const QJsonObject shown = run.objects().at(0);
    EXPECT_EQ(shown.keys().join(u' '), u"activesky flights home runner simulator switches weather"_s);
    EXPECT_EQ(shown["home"], install.home().native());
    EXPECT_EQ(shown["switches"]["halo"], true);
    for (const QJsonObject& object : {shown, install.run("config get runner").objects().at(0)})
        EXPECT_EQ(object["runner"], "wine --quiet");
    EXPECT_EQ(test::contentsBelow(install.folder.path()), before) << "looking changes nothing";

    Store store; // as one of version 2 before its upgrade
    store.open(install.home() / u"Morvane.mdb");
    store.execute(u"DROP TABLE TEXTURE_SWITCH"_s);
    store.close();
    test::expectSteps(install, {{u"config|show"_s, {u"\"halo\":null"_s}}});
}

/// Only a person can say which PC this is: a script's yes would end every later start of the simulator.
TEST_F(ConfigCommands, nobodyMakesTheInstallAClient) {
    forget(morvaneKey, u"IsWideClient"_s);
    for (const QString& policy : {u"yes"_s, u"no"_s, u"ask"_s}) {
        const auto run = install.run(u"ground list --answer "_s + policy);
        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.messages.count(u"No; use option set widefs on, or off"_s), 1)
            << run.messages.toStdString();
        EXPECT_EQ(stored(morvaneKey, u"IsWideClient"_s), QString()) << policy.toStdString();
    }
    EXPECT_EQ(Console(install.withHome(u"ground list --answer ask"_s)).finish("y\n").status, 0);
    EXPECT_EQ(stored(morvaneKey, u"IsWideClient"_s), u"True"_s);
}

} // namespace
} // namespace morvane
