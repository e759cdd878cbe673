#include "simulator/simulator_launch.h"

#include "core/program_start.h"
#include "core/wine_call.h"
#include "sets/options_in_force.h"
#include "simulator/set_matching.h"
#include "start_record.h"
#include "support/printing.h"
#include "support/small_install.h"
#include "weather/cover_choice.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::writeFile;

struct SimulatorLaunchTest : testing::Test {
    test::SmallInstall install;
    Session& session = install.session;
    FlightChoice& choice = session.state<FlightChoice>();
    FilePath program = install.simulator() / u"fs9.exe";
    FilePath flight = install.home() / u"Flights\\Evening Rain.flt";

    void SetUp() override { writeFile(flight, "flight"); }
    void placeStandIn(const FilePath& file) {
        const FilePath standIn(QStringLiteral(MORVANE_BIN_DIR "/morvane-simulator"));
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
            starts << start["arguments"].toVariant().toStringList().join(u'|');
        }
        return starts;
    }
};

const QString flightQuestion = "Question|Start Predefined Flight|Do you wish Morvane to start one of your "
                               "previously saved flights?";
const QString launchQuestion =
    "Question|Launch Flight Simulator?|Would you like Morvane to start Flight Simulator now?";

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
    session.state<FlightWeather>().WxCloudList = QStringList{"3"};
    chooseFlight("Evening Rain", true);
    install.user.answersToGive = {false, true};
    EXPECT_EQ(flyWithCover(session).filesCopied, -1);
    EXPECT_EQ(install.user.told().value(1), flightQuestion);
    EXPECT_EQ(startsIn(install.simulator(), 1).size(), 1);
    session.state<OptionsInForce>().IsWideClient = true;
    install.user.answersToGive = {false};
    flyWithCover(session);
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

TEST_F(SimulatorLaunchTest, whatDoesNotStartIsToldOf) {
    const std::tuple<QByteArray, QString, QString> cases[] = {
        // The simulator, the runner, and what is told; nothing for a start.
        {"MZ", {}, "SimulatorRunner"},
        {"MZ", "false", "The runner is false"},
        {"#!/bin/sh\nexec sleep 3\n", {}, {}}, // longer than a failure takes to show
    };
    for (const auto& [contents, runner, told] : cases) {
        writeFile(program, contents);
        QFile::setPermissions(program.native(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        setRunner(runner);
        install.user.messages.clear();
        install.user.calls.clear();
        EXPECT_EQ(launchFlightSimulator(session), told.isEmpty()) << contents.constData();
        EXPECT_EQ(install.user.told()[0], launchQuestion);
        EXPECT_EQ(install.user.calls.contains("minimise"), told.isEmpty())
            << "the program stays if nothing starts";
        const QString last = install.user.told().last();
        EXPECT_TRUE(last.contains(told)) << last.toStdString();
        EXPECT_EQ(last.startsWith("Exclamation|Flight Simulator Not Started|"), !told.isEmpty());
    }
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

#endif

} // namespace
} // namespace morvane
