
#include "app/command_line_run.h"
#include "app/exit_flow.h"
#include "app/start_up.h"
#include "core/store.h"
#include "core/store_connection.h"
#include "sets/options_in_force.h"
#include "support/printing.h"
#include "support/small_install.h"
#include "weather/cover_choice.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::SmallInstall;
using test::writeFile;

/// A complete install whose first session is over; the tests start the next one.
struct ApplicationTest : testing::Test {
    SmallInstall install;
    test::ScriptedUser& user = install.user;
    Session session{{user, install.files, install.clock, install.random, install.registry}, install.home()};

    void SetUp() override {
        closeDatabase(install.session);
        user.calls.clear();
    }
};

TEST_F(ApplicationTest, startsOnWhatTheRegistryAndTheStoreHold) {
    install.registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, simulatorKey, u"EXE Path"_s,
                                  install.simulator().native() + u'\\');
    install.files.removeFolder(install.home() / u"Backup");
    Store store;
    store.open(install.home() / u"Morvane.mdb");
    store.execute(u"UPDATE TEXTURE_SWITCH SET ISTROPICAL = TRUE, ISFASTEXIT = TRUE"_s);
    store.close();
    ASSERT_TRUE(startUp(session));
    EXPECT_EQ(session.FSPath.native(), install.simulator().native());
    EXPECT_TRUE(session.adoConn->isOpen() && install.files.isFolder(session.BackupPath));
    const OptionsInForce& options = session.state<OptionsInForce>();
    EXPECT_TRUE(options.IsTropical && options.IsFastExit && !options.IsDutch && !options.IsHalo);
    EXPECT_TRUE(user.calls.isEmpty());
}

TEST_F(ApplicationTest, asksUntilTheFolderHoldsTheSimulatorAndStoresIt) {
    install.files.remove(install.home() / u"registry.ini");
    const QString right = install.simulator().native();
    user.foldersToChoose = {install.home().native(), {}, right}; // a wrong one, a cancelled browser
    user.answersToGive = {true, true, false};                    // again, again, and no WideFS client
    ASSERT_TRUE(startUp(session));
    const QString firstBox =
        "box Your registry does not contain the proper path to FS9.EXE. Please browse to your main "
        "Flight Simulator 2004 folder (it needs to contain FS9.EXE).";
    const QString retryBox =
        "box The folder path you selected does not contain FS9.EXE. Please verify your FS2004 path and "
        "try again. You can do this by right-clicking your shortcut to Flight Simulator, and select "
        "Properties. You will see the folder listed. Would you like to try to locate the folder "
        "again? If you select no, we will exit.";
    EXPECT_EQ(user.calls.mid(0, 6), // the browser comes behind either
              QStringList({firstBox, u"browse"_s, retryBox, u"browse"_s, retryBox, u"browse"_s}));
    EXPECT_EQ(session.FSPath.native(), right);
    EXPECT_EQ(install.registry.GetRegString(HKEY_LOCAL_MACHINE_ROOT, simulatorKey, u"EXE Path"_s), right);
}

TEST_F(ApplicationTest, theCommandLineTakesTheCodesExactly) {
    ASSERT_TRUE(startUp(session));
    session.CommandLineRun = true;
    user.otherwise = false;
    for (const auto& [word, clouds] : {std::pair("CLR", QStringList{"1"}), {"OVC", {"5"}}, {"ovc", {}}}) {
        session.state<FlightWeather>().WxCloudList = QStringList{u"1"_s, u"2"_s};
        runCommandLine(session, word);
        EXPECT_EQ(session.state<FlightWeather>().WxCloudList, clouds) << word;
        EXPECT_EQ(session.state<FlightWeather>().WxStrengthList, QStringList(clouds.size(), QString()));
    }
    EXPECT_TRUE(user.messages.front().text.endsWith(u"obtained from Active Sky?"_s));
}

/// What cannot be removed does not keep the store open.
TEST_F(ApplicationTest, theExitClearsTheCyclesOnlyWhenATextIsAmongThem) {
    const struct {
        QStringList names;
        int failing; ///< of the file operations, and all behind it; the third comes behind the two listings
        QStringList left;
    } cases[] = {
        {{"02Z.TXT", "Export_Cycle.dat", "noending"}, 0, {}},
        {{"Export_Cycle.dat"}, 0, {"Export_Cycle.dat"}},
        {{"02Z.TXT"}, 3, {"02Z.TXT", "Export_Cycle.dat"}},
    };
    for (const auto& [names, failing, left] : cases) {
        ASSERT_TRUE(startUp(session));
        for (const QString& name : names)
            writeFile(install.home() / u"METAR" / name, "EHAM");
        install.files.failAt(failing, true);
        exitProgram(session);
        install.files.failAt(0, false);
        EXPECT_EQ(test::contentsBelow(install.home() / u"METAR").keys(), left);
        EXPECT_EQ(session.adoConn, nullptr);
        EXPECT_EQ(user.countOfKind(MessageKind::error), failing == 0 ? 0 : 1);
    }
}

} // namespace
} // namespace morvane
