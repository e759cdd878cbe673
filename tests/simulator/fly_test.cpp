#include "core/error.h"
#include "core/program_start.h"
#include "core/store.h"
#include "core/wine_call.h"
#include "sets/cloud_cover.h"
#include "sets/options_in_force.h"
#include "simulator/set_matching.h"
#include "simulator/simulator_launch.h"
#include "start_record.h"
#include "support/home_folder.h"
#include "support/small_install.h"
#include "support/system_files.h"
#include "support/wine_prefix.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace morvane::test {
namespace {

using Sets = std::vector<ActivatedSet>; ///< names and covers

struct SetMatchingTest : InstallTest {
    void addGrounds(const Sets& sets) {
        for (const auto& [name, cover] : sets)
            install.addGroundSet(name, cover, true, {"Texture\\029h2su6.bmp"});
    }
    void addSkies(const Sets& sets) {
        for (const auto& [name, cover] : sets)
            install.addSkySet(name, cover, true, {"sky.bmp"});
    }
    /// "Default" is an activated one for "Partly Cloudy"; some searches need it away.
    void setActivation(const QString& name, const QString& word) {
        const QString statement = u"UPDATE TEXTURE_SETS SET ACTIVATED = '%1' WHERE TEXTURE_SET = '%2'"_s;
        session.adoConn->execute(statement.arg(word, name));
        install.reload();
    }
    /// Ground and sky that an install for the cover left.
    QStringList matched(const QString& cover) {
        const MatchedSets matched = installMatchingSets(session, *cloudCover(cover));
        const QStringList chosen{matched.ground.name, matched.sky.name};
        EXPECT_EQ(install.installedSets() + install.installedSkySets(), chosen) << cover.toStdString();
        return chosen;
    }
};

TEST_F(SetMatchingTest, candidatesAreDrawnButNeverTheLast) {
    addGrounds({{"A", "Overcast"}, {"B", " Overcast "}, {"C", "Overcast"}, {"G", "Overcast"}});
    setActivation("G", "true"); // only the exact word activates
    addSkies({{"a", "Overcast"}, {"b", " Overcast"}, {"c", "Overcast"}, {"h", "Partly Cloudy"}});
    install.addSkySet("d", "Overcast", false);
    install.random.numbers = {0.49};
    EXPECT_EQ(matched("Overcast"), (QStringList{"A", "a"}));
    install.random.numbers = {0.9999999999};
    EXPECT_EQ(matched("Overcast"), (QStringList{"B", "b"}));
    EXPECT_EQ(matched("Partly Cloudy"), (QStringList{"Default", "h"})) << "\"Default\" takes part";
    EXPECT_TRUE(install.user.told().isEmpty());
}

/// The ground's search compares the next word, the sky's the present one.
TEST(ClosestSet, isSearchedUpwardsAndNeverBackAtTheEnds) {
    const Sets wet{{"Rain", "Overcast"}, {"Drizzle", "Mostly Cloudy"}, {"Sun", "Sky Clear"}},
        ends{wet[0], wet[2]};
    const std::tuple<const char*, Sets, const char*, const char*> cases[] = {
        {"Mostly Clear", wet, "Drizzle", "Drizzle"}, // up, though "Sky Clear" is nearer
        {"Sky Clear", wet, "Drizzle", "Sun"},
        {"Mostly Clear", ends, "-", "-"}, // however near they are
    };
    for (const auto& [cover, sets, ground, sky] : cases) {
        EXPECT_EQ(closestSet(sets, ClosestSearch::nextCover, *cloudCover(cover)).value_or("-"), ground)
            << cover;
        EXPECT_EQ(closestSet(sets, ClosestSearch::currentCover, *cloudCover(cover)).value_or("-"), sky)
            << cover;
    }
}

TEST_F(SetMatchingTest, theClosestSetsAreToldAndNotDrawn) {
    setActivation("Default", "False");
    addGrounds({{"Rain", "Mostly Cloudy"}, {"Drizzle", "Mostly Cloudy"}});
    addSkies({{"Sun", "Sky Clear"}, {"Haze", "Mostly Cloudy"}});
    EXPECT_EQ(matched("Overcast"), (QStringList{"Rain", "Haze"}));
    EXPECT_EQ(install.random.draws, 0);
    const QString told =
        "Information|No Activated %1 Texture Sets|you have no activated %2 texture sets equivalent "
        "to Overcast MV will now install the closest %2 texture set to Overcast";
    EXPECT_EQ(install.user.told(), (QStringList{told.arg("Ground", "ground"), told.arg("Sky", "sky")}));
}

/// A random source that fails, so that the choice of a set does.
struct BrokenRandom : RandomSource {
    double draw() override { throw Error(ErrorCode::overflow); }
};

TEST_F(SetMatchingTest, aFailureIsToldUnderAWordOfItsOwnSpelling) {
    addGrounds({{"A", "Overcast"}, {"B", "Overcast"}, {"C", "Overcast"}});
    BrokenRandom broken;
    Session failing({install.user, install.files, install.clock, broken, install.registry}, install.home());
    failing.adoConn = std::move(session.adoConn);
    installMatchingSets(failing, *cloudCover("Overcast"));
    EXPECT_EQ(install.user.told(), QStringList{"Exlamation|getIcaoWxDetails Error|Overflow"});
}

struct SimulatorLaunchTest : InstallTest {
    FlightChoice& choice = session.state<FlightChoice>();
    FilePath program = install.simulator() / u"fs9.exe";
    FilePath flight = install.home() / u"Flights\\Evening Rain.flt";

    void SetUp() override { writeFile(flight, "flight"); }
    void placeStandIn(const FilePath& file) {
        const FilePath standIn(QStringLiteral(MORVANE_BIN_DIR "/morvane-simulator") + programEnding);
        install.files.copyContents(standIn, file);
        install.files.copyMode(standIn, file);
    }
    void setRunner(const QString& command) { storeOwnValue(install.registry, "SimulatorRunner", command); }
    void chooseFlight(const QString& name, bool isConfirmed) {
        install.user.onModal = [this, name, isConfirmed](Screen) {
            choice.SelectedFlightName = name;
            choice.FlightSelected = isConfirmed;
        };
    }
    /// By whatever name; on Windows it is handed on by a short one.
    bool isFlight(const QString& path) {
        const FilePath file(path);
        return install.files.exists(file) &&
               install.files.stamp(file).isSameFile(install.files.stamp(flight));
    }
    /// The arguments of each start that the stand-in recorded, once there are so many. The simulator is
    /// started detached, so its record has to be waited for.
    QStringList startsIn(const FilePath& folder, qsizetype count) {
        const QDeadlineTimer watchdog(60000);
        QByteArrayList lines;
        while (lines.size() < count && !watchdog.hasExpired())
            lines = recordedStarts(folder.native());
        QStringList starts;
        for (const QByteArray& line : std::as_const(lines)) {
            const QJsonObject start = QJsonDocument::fromJson(line).object();
            EXPECT_EQ(start["workingFolder"].toString(), install.simulator().native());
            QStringList arguments = start["arguments"].toVariant().toStringList();
            for (QString& argument : arguments)
                if (isFlight(argument)) argument = flight.native();
            starts << arguments.join(u'|');
        }
        return starts;
    }
};

const QString flightQuestion = "Question|Start Predefined Flight|Do you wish Morvane to start one of your "
                               "previously saved flights?";
TEST_F(SimulatorLaunchTest, startsWhatWasChosenAndMinimisesButAnUnattendedRun) {
    placeStandIn(program);
    const std::tuple<bool, QString, bool, bool> cases[] = {
        // Unattended, the name, whether it is confirmed, and whether the road ends behind it.
        {false, "Evening Rain", true, true},
        {false, "Evening Rain", false, false},
        {false, {}, true, true}, // OK without a name: nothing starts, now or later on the road
        {true, "evening rain", true, true},
    };
    QStringList starts;
    for (const auto& [isUnattended, name, isConfirmed, isSelected] : cases) {
        install.user.messages.clear();
        session.CommandLineRun = isUnattended;
        choice.FlightSelected = true; // of the flight before
        chooseFlight(name, isConfirmed);
        bool wasMarked = false;
        install.user.onMinimise = [&] { wasMarked = session.MinimiseForLaunch; };
        startSavedFlight(session);
        EXPECT_EQ(install.user.told(), QStringList{flightQuestion});
        EXPECT_EQ(choice.FlightSelected, isSelected);
        const bool isStarted = isConfirmed && !name.isEmpty();
        EXPECT_EQ(wasMarked, isStarted && !isUnattended);
        EXPECT_FALSE(session.MinimiseForLaunch);
        if (isStarted) starts << flight.native();
        EXPECT_EQ(startsIn(install.simulator(), starts.size()), starts);
    }
}

TEST_F(SimulatorLaunchTest, aChosenFlightOrAWideClientEndsTheRoad) {
    placeStandIn(program);
    chooseFlight("Evening Rain", true);
    install.user.answersToGive = {false, true};
    EXPECT_FALSE(flyWithCover(session, coverOfClass(3)).installed);
    EXPECT_EQ(install.user.told().value(1), flightQuestion);
    EXPECT_EQ(startsIn(install.simulator(), 1).size(), 1);
    session.state<OptionsInForce>().IsWideClient = true;
    install.user.answersToGive = {false};
    flyWithCover(session, coverOfClass(3));
    EXPECT_FALSE(choice.FlightSelected);
    EXPECT_EQ(install.user.told().mid(3),
              QStringList{"Information|Processing Complete|Processing complete. You can "
                          "now start Flight Simulator on the server."});
}

#ifndef Q_OS_WIN

TEST_F(SimulatorLaunchTest, aWindowsSimulatorIsStartedByTheRunner) {
    qputenv("WINEPREFIX", install.folder.path().native().toUtf8()); // no drives of this machine
    const FilePath runner = install.folder / u"The runner";
    install.files.makeFolder(runner);
    placeStandIn(runner / u"runner");
    setRunner(u'"' + (runner / u"runner").native() + "\" --quiet");
    chooseFlight("Evening Rain", true);
    startSavedFlight(session);
    const QString onDrive = "Z:" + flight.native().replace(u'/', u'\\');
    EXPECT_EQ(startsIn(runner, 1), QStringList{"--quiet|" + program.native() + u'|' + onDrive});
}

TEST_F(SimulatorLaunchTest, aFlightInThePrefixHasItsDrivesLetter) {
    const FilePath prefix = install.folder / u"The prefix", simulator = prefix / u"drive_c\\Games\\FS9",
                   games = install.folder / u"Games and more", beside = install.folder / u"Games and more 2";
    const QString root = prefix.native();
    const QString links[][2] = {
        {"c:", "../drive_c"}, {"z:", "/"}, {"g:", games.native()}, {"n:", root + "/nowhere"}};
    const std::pair<FilePath, QString> cases[] = {
        {simulator / u"Flights\\Late Rain.flt", "C:\\Games\\FS9\\Flights\\Late Rain.flt"},
        {games / u"a.flt", "G:\\a.flt"},
        {beside / u"a.flt", "Z:" + QString(beside.native() + "/a.flt").replace(u'/', u'\\')},
    };
    writeFile(simulator / u"fs9.exe", "MZ");
    QDir().mkpath(root + "/dosdevices");
    for (const auto& [name, target] : links)
        ASSERT_TRUE(QFile::link(target, root + "/dosdevices/" + name));
    for (const auto& [file, expected] : cases) {
        writeFile(file, "flight");
        EXPECT_EQ(wineDocumentPath(file.native(), root), expected);
        const ProgramCall call = programCall(simulator / u"fs9.exe", file, "wine");
        EXPECT_EQ(call.arguments.last(), expected);
        EXPECT_EQ(call.winePrefix, root) << "the simulator's own prefix";
    }
}

/// Without a runner: the command that was started, with the prefix before it, or what is told.
TEST_F(SimulatorLaunchTest, aPrefixOfPlainWineIsStartedAndAKeptOneIsNot) {
    const QString root = install.folder.path().native(), drive = root + "/Games and more";
    const FilePath record = install.folder / u"record", commands = install.folder / u"bin";
    writeFile(commands / u"wine",
              "#!/bin/sh\nprintf '%s|' \"$WINEPREFIX\" \"$@\" > '" + record.native().toUtf8() + "'\n");
    install.files.setMode(commands / u"wine", 0755);
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", commands.native().toUtf8() + ':' + path);
    const QString advice =
        "Flight Simulator Not Started|Flight Simulator lies in a Wine prefix of %1, which "
        "Morvane only reads. Let %1 start it, or have these lines in Morvane's registry.ini:"
        "\n[HKEY_LOCAL_MACHINE\\Software\\Orrinsoft\\Morvane]\nSimulatorRunner=\"%2\"";
    const HomeFolder home;
    qunsetenv("WINEPREFIX"); // that of a start is handed to it
    const QString plain = home.path() + "/.wine", steam = root + "/compatdata/8/pfx", bottle = root + "/b";
    const FilePath own = makePrefix(plain), beside = FilePath(drive) / u"FS9";
    writeFile(FilePath(bottle) / u"bottle.yml", "Name: B\n");
    writeFile(beside / u"fs9.exe", "MZ");
    link(drive, plain + "/dosdevices/d:");
    writeFile(FilePath(plain) / u"user.reg", simulatorSection("D:\\\\FS9"));
    const std::tuple<FilePath, QString, QString> cases[] = {
        {own, plain + '|' + own.native() + "/fs9.exe|", {}},
        {beside, plain + '|' + beside.native() + "/fs9.exe|", {}}, // on a drive of the prefix that names it
        {makePrefix(steam), {}, advice.arg("Steam", "protontricks-launch --appid 8")},
        {makePrefix(bottle), {}, advice.arg("Bottles", "bottles-cli run -b B -e")},
        {install.simulator(), {}, "needs a runner on this system"},
    };
    for (const auto& [simulator, started, told] : cases) {
        install.user.messages.clear();
        QFile::remove(record.native());
        session.FSPath = simulator;
        EXPECT_EQ(launchFlightSimulator(session), !started.isEmpty());
        EXPECT_EQ(install.files.readIfThere(record).value_or(QByteArray()), started);
        EXPECT_TRUE(install.user.told().last().contains(told)) << install.user.told().last().toStdString();
    }
    qputenv("PATH", path);
}

#endif

} // namespace
} // namespace morvane::test
