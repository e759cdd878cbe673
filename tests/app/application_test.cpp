#include "app/command_line_run.h"
#include "app/exit_flow.h"
#include "app/start_up.h"
#include "core/changed_rows.h"
#include "core/store.h"
#include "core/store_connection.h"
#include "core/store_records.h"
#include "core/wine_prefixes.h"
#include "ground/ground_installation.h"
#include "ground/ground_sets.h"
#include "sets/options_in_force.h"
#include "sky/sky_installation.h"
#include "sky/sky_tuning_state.h"
#include "support/home_folder.h"
#include "support/small_install.h"
#include "support/wine_prefix.h"
#include "weather/cover_choice.h"

#ifndef Q_OS_WIN
#include <QProcess>
#include <sys/inotify.h>
#include <unistd.h>
#endif

namespace morvane::test {
namespace {

/// A complete install whose first session is over; the tests start the next one.
struct ApplicationTest : testing::Test {
    SmallInstall install;
    ScriptedUser& user = install.user;
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
    reloadChangedRows(session);
    store.open(install.home() / u"Morvane.mdb");
    store.execute(u"UPDATE TEXTURE_SWITCH SET ISDUTCH = TRUE"_s);
    store.close();
    EXPECT_TRUE(reloadChangedRows(session) && options.IsDutch);
    EXPECT_TRUE(user.calls.isEmpty());
    for (const bool isOnNetwork : {false, true}) {
        closeDatabase(session);
        install.files.isToldNetwork = isOnNetwork;
        ASSERT_TRUE(startUp(session));
        EXPECT_EQ(install.files.exists(install.home() / u"Morvane.mdb-wal"), !isOnNetwork);
    }
}

/// The trial of the folder is the second of the file operations.
TEST_F(ApplicationTest, aFolderThatNobodyMayWriteIntoServesReadingAndNothingElse) {
    storeOwnValue(install.registry, u"FirstTime"_s, u"True"_s);
    install.files.removeFolder(install.home() / u"Backup");
    writeFile(install.home() / u"AIRPORTDATA.txt", "ID"); // asks for an upgrade
    const auto before = contentsBelow(install.home());
    install.files.failAt(2, false);
    EXPECT_FALSE(startUp(session));
    ASSERT_EQ(user.calls.size(), 1);
    EXPECT_TRUE(user.calls[0].startsWith(u"box Morvane may not write into its install folder: "_s));
    install.files.failAt(2, false);
    ASSERT_TRUE(startUp(session, InstallUse::reading));
    EXPECT_EQ(user.calls.size(), 1);
    EXPECT_TRUE(session.adoConn->hasTable(u"TEXTURE_SETS"_s));
    EXPECT_THROW(session.adoConn->execute(u"DELETE FROM TEXTURE_SETS"_s), Error);
    EXPECT_TRUE(contentsBelow(install.home()) == before);
    EXPECT_FALSE(install.files.isFolder(session.BackupPath));
    closeDatabase(session);
    ASSERT_TRUE(startUp(session)) << "and it was lent only";
    EXPECT_FALSE(install.files.exists(install.home() / u"AIRPORTDATA.txt"));
    EXPECT_EQ(ownValue(install.registry, u"FirstTime"_s), "False");
}

TEST_F(ApplicationTest, asksUntilTheFolderHoldsTheSimulatorAndStoresIt) {
    install.files.remove(install.home() / u"registry.ini");
    const QString right = install.simulator().native();
    user.answersToGive = {false};
    EXPECT_FALSE(startUp(session)) << "a No to another try is the end";
    user.calls.clear();
    user.foldersToChoose = {install.home().native(), {}, right}; // a wrong one, a cancelled browser
    user.answersToGive = {true, true, false};                    // again, again, and no WideFS client
    const auto isFound = [&] {
        user.calls << u"found"_s;
        EXPECT_FALSE(hasStore(session));
    };
    ASSERT_TRUE(startUp(session, InstallUse::writing, isFound));
    const QString firstBox =
        "box Your registry does not contain the proper path to FS9.EXE. Please browse to your main "
        "Flight Simulator 2004 folder (it needs to contain FS9.EXE).";
    const QString retryBox =
        "box The folder path you selected does not contain FS9.EXE. Please verify your FS2004 path and "
        "try again. You can do this by right-clicking your shortcut to Flight Simulator, and select "
        "Properties. You will see the folder listed. Would you like to try to locate the folder "
        "again? If you select no, we will exit.";
    EXPECT_EQ(user.calls.mid(0, 7), // the browser comes behind either
              QStringList({firstBox, u"browse"_s, retryBox, u"browse"_s, retryBox, u"browse"_s, u"found"_s}));
    EXPECT_EQ(session.FSPath.native(), right);
    EXPECT_EQ(install.registry.GetRegString(HKEY_LOCAL_MACHINE_ROOT, simulatorKey, u"EXE Path"_s), right);
}

#ifndef Q_OS_WIN

/// Of plain wine, and of Steam.
TEST_F(ApplicationTest, takesTheSimulatorOfAPrefixAndOffersSeveral) {
    const HomeFolder home;
    const QString plain = home.path() + "/.wine",
                  steam = home.path() + "/.local/share/Steam/steamapps/compatdata/9/pfx";
    const QString box = "box Flight Simulator 2004 was found in %1. Would you like to use this one?\n%2";
    const auto stored = [this] {
        return install.registry.GetRegString(HKEY_LOCAL_MACHINE_ROOT, simulatorKey, u"EXE Path"_s);
    };
    const QString one = makePrefix(plain).native();
    ASSERT_TRUE(startUp(session));
    EXPECT_EQ(stored(), install.simulator().native()) << "the install's own goes first";
    const QString foundOne = "done Flight Simulator 2004 was found in " + one;
    const auto startAnew = [&](const QString& named, const std::deque<bool>& answers) {
        closeDatabase(session);
        install.registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, simulatorKey, u"EXE Path"_s, named);
        user.calls.clear();
        user.answersToGive = answers;
        return startUp(session);
    };
    EXPECT_TRUE(startAnew({}, {}));
    EXPECT_EQ(user.calls, QStringList{foundOne}) << "one is not asked about";
    EXPECT_TRUE(startAnew("/gone", {true}));
    EXPECT_EQ(user.calls, QStringList({box.arg("1 place", one), foundOne})) << "but in another's stead";
    EXPECT_EQ(stored(), one);
    const QString two = makePrefix(steam).native();
    const auto before = contentsBelow(FilePath(home.path()));
    EXPECT_TRUE(startAnew({}, {false, true}));
    EXPECT_EQ(user.calls, QStringList({box.arg("2 places", one), box.arg("2 places", two + " (Steam)"),
                                       "done" + foundOne.mid(4).replace(one, two)}));
    EXPECT_EQ(session.FSPath.native(), two);
    EXPECT_FALSE(startAnew({}, {false, false, false}));
    EXPECT_EQ(user.calls.value(3), "browse");
    EXPECT_EQ(contentsBelow(FilePath(home.path())), before) << "a prefix is only read";
}

/// This program once more, in a home with a prefix that tells when something in it is opened.
TEST(OwnHome, keepsTheTestsFromPrefixesOutside) {
    const HomeFolder outside;
    const QString prefix = outside.path() + "/.wine";
    makePrefix(prefix);
    const int watch = inotify_init1(IN_NONBLOCK);
    ASSERT_GE(inotify_add_watch(watch, QFile::encodeName(prefix).constData(), IN_OPEN), 0);
    const auto wasOpened = [watch] {
        char event[4096];
        return read(watch, event, sizeof event) > 0;
    };
    QProcess tests;
    tests.start(QFileInfo(u"/proc/self/exe"_s).canonicalFilePath(),
                {u"--gtest_filter=ApplicationTest.asks*"_s});
    ASSERT_TRUE(tests.waitForFinished(100000));
    EXPECT_EQ(tests.exitCode(), 0) << tests.readAllStandardOutput().toStdString();
    EXPECT_FALSE(wasOpened());
    NativeFileSystem files;
    EXPECT_EQ(simulatorsInPrefixes(files).size(), 1U);
    EXPECT_TRUE(wasOpened()) << "or the look above sees nothing";
    close(watch);
}

#endif

/// Another spelling is no code: the cover in the middle.
TEST_F(ApplicationTest, theCommandLineTakesTheCodesExactly) {
    ASSERT_TRUE(startUp(session));
    session.CommandLineRun = true;
    const std::tuple<QString, QString> cases[] = {
        {"CLR", "Sky Clear"}, {"OVC", "Overcast"}, {"ovc", "Partly Cloudy"}};
    for (const auto& [word, cover] : cases) {
        user.messages.clear();
        user.answersToGive = {true};
        user.otherwise = false;
        runCommandLine(session, word);
        EXPECT_TRUE(user.messages[0].text.endsWith(u"obtained from Active Sky?"_s));
        EXPECT_TRUE(user.messages[1].text.endsWith(cover)) << user.messages[1].text.toStdString();
    }
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
        session.state<SkyTuningState>().isLoaded = failing == 0;
        exitProgram(session);
        install.files.failAt(0, false);
        EXPECT_TRUE(install.files.exists(install.home() / u"LastSkySettings.cfg"));
        EXPECT_EQ(contentsBelow(install.home() / u"METAR").keys(), left);
        EXPECT_EQ(session.adoConn, nullptr);
        EXPECT_EQ(user.countOfKind(MessageKind::error), failing == 0 ? 0 : 1);
    }
}

struct ExitQuestion : InstallTest {
    void put(const QString& ground, const QString& sky = {}) {
        GroundInstallation(session).installTextureSet(ground);
        if (!sky.isEmpty()) SkyInstallation(session).installSkySet(sky);
        install.user.messages.clear();
        install.user.calls.clear();
    }
};

TEST_F(ExitQuestion, namesWhatStandsThereAndResetsThatOnly) {
    install.addGroundSet("2-Storm", "Overcast", true);
    install.addSkySet("Default", "Partly Cloudy", true);
    install.addSkySet("2-Calm", "Sky Clear", true);
    const QString start = "Question|Reset MV Textures?|Morvane has detected that you have ";
    const QString end =
        " Texture Set installed. Please select the check button if you wish to reset Morvane textures "
        "to a nominal weather condition of Partly Cloudy before exiting.";
    const std::tuple<QString, QString, QString> cases[] = {
        {"2-Storm", {}, "'Overcast' Ground"},
        {"Default", "2-Calm", "'Sky Clear' Sky"},
        {"2-Storm", "2-Calm", "'Overcast' Ground Texture Set installed and 'Sky Clear' Sky"}};
    for (const auto& [ground, sky, text] : cases) {
        put(ground, sky);
        checkResetTextures(session);
        EXPECT_EQ(install.user.told(), QStringList{start + text + end});
        EXPECT_TRUE(install.user.messages.front().offersFastExit);
        EXPECT_EQ(install.installedSets(), QStringList{"Default"});
        EXPECT_EQ(install.installedSkySets(), QStringList(sky.isEmpty() ? 0 : 1, "Default"));
        EXPECT_EQ(install.user.calls.filter("ground textures").isEmpty(), ground == "Default");
        install.user.messages.clear();
    }
    checkResetTextures(session); // "Default" stands there
    put("2-Storm");
    session.state<OptionsInForce>().IsFastExit = true;
    checkResetTextures(session);
    session.state<OptionsInForce>().IsFastExit = false;
    EXPECT_TRUE(install.user.told().isEmpty()) << "without need it is not asked";
    install.user.otherwise = false;
    checkResetTextures(session);
    EXPECT_EQ(install.installedSets(), QStringList{"2-Storm"}) << "a No keeps the set";
    session.CommandLineRun = true;
    exitProgram(session);
    EXPECT_EQ(install.user.told().size(), 1);
}

TEST_F(ExitQuestion, theEndOfTheSessionEndsACopyAtItsNextFileAsksNothingAndResetsNothing) {
    const QStringList files{"Texture\\a.bmp", "Texture\\b.bmp", "Texture\\c.bmp", "Texture\\d.bmp"};
    install.addGroundSet("2-Storm", "Overcast", true, files);
    session.state<OptionsInForce>().InhibitCustomSplash = true;
    const auto placed = [this] {
        return session.files.list(session.FSPath / u"Scenery\\World\\texture", u"?.bmp"_s);
    };
    install.user.onPump = [&] {
        if (placed().size() == 2) session.ExitInProgress.moveTo(ExitStage::sessionEnd);
    };
    put("2-Storm");
    EXPECT_EQ(placed(), QStringList({"a.bmp", "b.bmp"}));
    exitProgram(session);
    EXPECT_EQ(install.user.told(), QStringList{});
    EXPECT_EQ(session.adoConn, nullptr);
    connectDatabase(session);
    EXPECT_EQ(install.installedSets(), QStringList({"2-Storm"}));
}

} // namespace
} // namespace morvane::test
