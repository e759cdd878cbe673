#include "simulator/simulator_launch.h"

#include "core/program_start.h"
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
    FlightChoice& modal = session.state<FlightChoice>();
    FilePath program = install.simulator() / u"fs9.exe";

    void placeStandIn(const FilePath& file) {
        const FilePath standIn(QStringLiteral(MORVANE_BIN_DIR "/morvane-simulator"));
        install.files.copyContents(standIn, file);
        install.files.copyMode(standIn, file);
    }
    void setRunner(const QString& command) {
        install.registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, u"SimulatorRunner"_s, command);
    }
    void chooseFlight(const QString& name, bool isConfirmed) {
        install.user.onModal = [this, name, isConfirmed](Screen) {
            modal.SelectedFlightName = name;
            modal.FlightSelected = isConfirmed;
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
            EXPECT_EQ(start[u"workingFolder"_s].toString(), install.simulator().native());
            starts << start[u"arguments"_s].toVariant().toStringList().join(u'|');
        }
        return starts;
    }
};

const QString flightQuestion = u"Question|Start Predefined Flight|Do you wish Morvane to start one of your "
                               u"previously saved flights?"_s;
const QString launchQuestion =
    u"Question|Launch Flight Simulator?|Would you like Morvane to start Flight Simulator now?"_s;

TEST_F(SimulatorLaunchTest, startsWhatWasChosenAndMinimisesButAnUnattendedRun) {
    writeFile(install.home() / u"Flights\\Evening Rain.flt", "flight");
    placeStandIn(program);
    const QString flight = (install.home() / u"Flights\\Evening Rain.flt").native();
    struct Case {
        bool isUnattended, wantsFlight;
        QString name;
        bool isConfirmed;
        QString start; ///< arguments; a null text for no start
        bool isSelected;
    };
    const Case cases[] = {
        {false, true, u"Evening Rain"_s, true, flight, true},
        {false, true, u"Evening Rain"_s, false, {}, false},
        {false, true, {}, true, {}, true}, // OK without a name: nothing starts, now or later on the road
        {false, false, u"Evening Rain"_s, true, {}, false},
        {true, true, u"evening rain"_s, true, flight, true},
    };
    QStringList starts;
    for (const Case& c : cases) {
        install.user.calls.clear();
        install.user.messages.clear();
        session.CommandLineRun = c.isUnattended;
        modal.FlightSelected = true; // of the flight before
        chooseFlight(c.name, c.isConfirmed);
        install.user.otherwise = c.wantsFlight;
        bool wasMarked = false;
        install.user.onMinimise = [&] { wasMarked = session.MinimiseForLaunch; };
        startSavedFlight(session);
        EXPECT_EQ(install.user.told(), QStringList{flightQuestion});
        EXPECT_EQ(install.user.calls.contains(u"modal frm_flight"_s), c.wantsFlight);
        EXPECT_EQ(modal.FlightSelected, c.isSelected);
        EXPECT_EQ(wasMarked, !c.start.isNull() && !c.isUnattended);
        EXPECT_FALSE(session.MinimiseForLaunch);
        if (!c.start.isNull()) starts << c.start;
        EXPECT_EQ(startsIn(install.simulator(), starts.size()), starts);
    }
}

TEST_F(SimulatorLaunchTest, theLaunchQuestionStartsWithoutAFlight) {
    placeStandIn(program);
    install.user.otherwise = false;
    launchFlightSimulator(session);
    EXPECT_EQ(install.user.calls.last(), u"refresh frm_Main"_s);
    session.CommandLineRun = true;
    install.user.calls.clear();
    launchFlightSimulator(session);
    EXPECT_FALSE(install.user.calls.contains(u"refresh frm_Main"_s)) << "an unattended run ends";
    session.CommandLineRun = false;
    install.user.otherwise = true;
    launchFlightSimulator(session);
    EXPECT_EQ(install.user.calls.last(), u"minimise"_s);
    EXPECT_EQ(install.user.told(), QStringList(3, launchQuestion));
    EXPECT_EQ(startsIn(install.simulator(), 1), QStringList{QString()}) << "one start, without arguments";
}

TEST_F(SimulatorLaunchTest, theRoadAsksForTheSetsThenAFlightThenTheSimulator) {
    writeFile(install.home() / u"Flights\\Evening.flt", "flight");
    placeStandIn(program);
    session.state<FlightWeather>().WxCloudList = QStringList{u"3"_s};
    const auto titles = [&] {
        QStringList found;
        for (const QString& line : install.user.told())
            found << line.section(u'|', 1, 1);
        install.user.messages.clear();
        return found;
    };
    install.user.answersToGive = {false, false, true};
    EXPECT_EQ(flyWithCover(session).filesCopied, -1);
    EXPECT_EQ(titles(), (QStringList{u"Install Textures?"_s, u"Start Predefined Flight"_s,
                                     u"Launch Flight Simulator?"_s}));
    EXPECT_EQ(startsIn(install.simulator(), 1).size(), 1);
    chooseFlight(u"Evening"_s, true);
    install.user.answersToGive = {false, true};
    flyWithCover(session);
    EXPECT_EQ(titles(), (QStringList{u"Install Textures?"_s, u"Start Predefined Flight"_s}));
    EXPECT_EQ(startsIn(install.simulator(), 2).size(), 2);
    session.state<OptionsInForce>().IsWideClient = true;
    install.user.answersToGive = {false};
    flyWithCover(session);
    EXPECT_EQ(titles(), (QStringList{u"Install Textures?"_s, u"Processing Complete"_s}));
}

TEST_F(SimulatorLaunchTest, aWideClientStartsNothing) {
    session.state<OptionsInForce>().IsWideClient = true;
    modal.FlightSelected = true;
    startSavedFlight(session);
    EXPECT_FALSE(modal.FlightSelected);
    launchFlightSimulator(session);
    EXPECT_EQ(install.user.told(),
              QStringList{u"Information|Processing Complete|Processing complete. You can "
                          u"now start Flight Simulator on the server."_s});
    EXPECT_EQ(install.user.calls.size(), 1);
}

#ifndef Q_OS_WIN

TEST_F(SimulatorLaunchTest, aWindowsSimulatorIsStartedByTheRunner) {
    qputenv("WINEPREFIX", install.folder.path().native().toUtf8()); // no drives of this machine
    const FilePath runner = install.folder / u"The runner";
    install.files.makeFolder(runner);
    placeStandIn(runner / u"runner");
    setRunner(u'"' + (runner / u"runner").native() + u"\" --quiet"_s);
    writeFile(install.home() / u"Flights\\Late Rain.flt", "flight");
    chooseFlight(u"Late Rain"_s, true);
    startSavedFlight(session);
    const QString flight = (install.home() / u"Flights\\Late Rain.flt").native();
    EXPECT_EQ(startsIn(runner, 1), QStringList{u"--quiet|"_s + program.native() + u"|Z:"_s +
                                               QString(flight).replace(u'/', u'\\')});
}

TEST_F(SimulatorLaunchTest, whatDoesNotStartIsToldOf) {
    const std::tuple<QByteArray, QString, QString> cases[] = {
        // The simulator, the runner, and what is told; nothing for a start.
        {"MZ", {}, u"SimulatorRunner"_s},
        {"MZ", u"/nowhere/wine"_s, u"The runner is /nowhere/wine"_s},
        {"MZ", u"false"_s, u"The runner is false"_s},
        {"MZ", u"true"_s, {}},
        {"#!/nowhere/sh\n", {}, u"could not be started: "_s + program.text()},
        {"#!/bin/sh\nexit 3\n", {}, u"could not be started: "_s + program.text()},
        {"#!/bin/sh\nexec sleep 3\n", {}, {}}, // longer than a failure takes to show
    };
    for (const auto& [contents, runner, told] : cases) {
        writeFile(program, contents);
        QFile::setPermissions(program.native(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        setRunner(runner);
        install.user.messages.clear();
        install.user.calls.clear();
        EXPECT_EQ(launchFlightSimulator(session), told.isEmpty()) << contents.constData();
        EXPECT_EQ(install.user.told().value(0), launchQuestion);
        EXPECT_EQ(install.user.calls.contains(u"minimise"_s), told.isEmpty())
            << "the program stays if nothing starts";
        const QString last = install.user.told().last();
        EXPECT_TRUE(last.contains(told)) << last.toStdString();
        EXPECT_EQ(last.startsWith(u"Exclamation|Flight Simulator Not Started|"_s), !told.isEmpty());
    }
}

TEST_F(SimulatorLaunchTest, theCallDependsOnWhatTheProgramIs) {
    const FilePath flight = install.home() / u"Flights\\a.flt";
    writeFile(flight, "flight");
    const QString exe = program.native(), folder = install.simulator().native();
    const auto callOf = [&](const QString& runner) {
        const ProgramCall call = programCall(program, flight, runner);
        EXPECT_EQ(call.workingFolder, folder);
        EXPECT_EQ(call.winePrefix, QString());
        return QStringList{call.program} + call.arguments;
    };
    EXPECT_EQ(callOf({}), (QStringList{exe, flight.native()})) << "no runner is set";
    EXPECT_EQ(callOf(u"env A=1 wine"_s).mid(0, 4), (QStringList{u"env"_s, u"A=1"_s, u"wine"_s, exe}));
    writeFile(program, "#!/bin/sh\n");
    EXPECT_EQ(callOf(u"wine"_s), (QStringList{exe, flight.native()})) << "no Windows program";
    EXPECT_TRUE(programCall(program, {}, {}).arguments.isEmpty());
}

TEST_F(SimulatorLaunchTest, aFlightInThePrefixHasItsDrivesLetter) {
    const FilePath prefix = install.folder / u"The prefix";
    const QString root = prefix.native();
    const FilePath simulator = prefix / u"drive_c\\Games\\FS9";
    const FilePath games = install.folder / u"Games and more", beside = install.folder / u"Games and more 2";
    const QString links[][2] = {{u"c:"_s, u"../drive_c"_s},
                                {u"z:"_s, u"/"_s},
                                {u"g:"_s, games.native()},
                                {u"n:"_s, root + u"/nowhere"_s},
                                {u"c::"_s, u"/dev/null"_s}};
    const std::pair<FilePath, QString> cases[] = {
        {simulator / u"Flights\\Late Rain.flt", u"C:\\Games\\FS9\\Flights\\Late Rain.flt"_s},
        {games / u"a.flt", u"G:\\a.flt"_s},
        {beside / u"a.flt", u"Z:"_s + QString(beside.native() + u"/a.flt"_s).replace(u'/', u'\\')},
    };
    for (const auto& [file, path] : cases)
        writeFile(file, "flight");
    writeFile(simulator / u"fs9.exe", "MZ");
    QDir().mkpath(root + u"/dosdevices"_s);
    for (const auto& [name, target] : links)
        ASSERT_TRUE(QFile::link(target, root + u"/dosdevices/"_s + name));
    for (const auto& [file, expected] : cases) {
        EXPECT_EQ(wineDocumentPath(file.native(), root), expected);
        const ProgramCall call = programCall(simulator / u"fs9.exe", file, u"wine"_s);
        EXPECT_EQ(call.arguments.last(), expected);
        EXPECT_EQ(call.winePrefix, root) << "the simulator's own prefix";
    }
}

#endif

} // namespace
} // namespace morvane
