#include "support/small_install.h"
#include "weather/active_sky.h"

#include "weather/reports.h"
#include "weather/weather_refresh.h"
#include "weather/weather_state.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

namespace morvane::test {
namespace {

/// Notes what it is asked for, and lets the clock stand in for a rest.
class ScriptedPlatform : public ActiveSkyPlatform {
public:
    explicit ScriptedPlatform(ScriptedClock& clock) : clock_(clock) {}
    bool isWindowOpen(const QString& title) override { return isRunning && title == u"ASv6"; }
    bool startASv6(Session&) override { return ++starts > 0; }
    void rest() override {
        clock_.now = clock_.now.addSecs(1);
        ++rests;
        onRest();
    }

    bool isRunning = false;
    int starts = 0, rests = 0;
    std::function<void()> onRest = [] {};

private:
    ScriptedClock& clock_;
};

struct ActiveSkyTest : InstallTest {
    ActiveSkyTest() {
        install.registry.CreateRegKey(HKEY_LOCAL_MACHINE_ROOT, activeSkyKey);
        install.registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, activeSkyKey, u"Install_Path"_s,
                                      folder.native() + u'\\');
        user.onModal = [this](Screen) { session.state<MetarRequest>().metarRequested = true; };
        session.state<WeatherState>().MetarDataLoaded = true;
    }

    /// A program of that file version: only its fixed version record counts.
    void writeProgram(int major, int build) const {
        QByteArray record("MZ\xbd\x04\xef\xfe\0\0\1\0", 10);
        for (const int part : {0, major, 0, build})
            record.append(static_cast<char>(part % 256)).append(static_cast<char>(part / 256));
        writeFile(folder / u"ASv6.exe", record);
    }
    void writeExport(const QByteArray& text, const QTime& time) const {
        writeFile(exported, text);
        QFile opened(exported.native());
        ASSERT_TRUE(opened.open(QIODevice::ReadWrite));
        opened.setFileTime(QDateTime(QDate(2007, 10, 14), time), QFileDevice::FileModificationTime);
    }
    QString found() {
        user.messages.clear();
        findActiveSky(session);
        EXPECT_TRUE(user.messages.empty()) << "it is told to those who use it";
        tellActiveSkyProblem(session);
        const WeatherState& weather = session.state<WeatherState>();
        return QString(weather.ASv6Present ? u"present "_s : u"absent "_s) +
               (weather.ASv6VersionOK ? u"supported"_s : u"refused"_s);
    }
    void makeSupported() {
        install.files.makeFolder(folder);
        writeProgram(6, 5121);
        EXPECT_EQ(found(), u"present supported"_s);
    }

    FilePath folder = install.folder / u"ASv6 Ünï", exported = folder / u"Export_Cycle.dat";
    ScriptedPlatform platform{install.clock};
};

TEST_F(ActiveSkyTest, isFoundStepByStep) {
    EXPECT_EQ(found(), u"absent refused"_s);
    EXPECT_TRUE(user.told().value(0).startsWith(u"Exclamation|Path not found|ASv6.exe could not be "_s));
    install.files.makeFolder(folder);
    EXPECT_EQ(found(), u"absent refused"_s);
    EXPECT_TRUE(user.told().value(0).startsWith(u"Exclamation|ASv6.exe not found|"_s));
    for (const auto& [major, build] : {std::pair{6, 5120}, {7, 1}, {5, 9999}, {7, 6000}, {6, 5121}}) {
        writeProgram(major, build);
        EXPECT_EQ(found(), build > 5120 && major > 5 ? u"present supported"_s : u"present refused"_s);
    }
    EXPECT_FALSE(session.state<WeatherState>().ASv6Local);
    writeExport("EHAM", {14, 7});
    QByteArray text = readFile(install.home() / u"registry.ini");
    writeFile(install.home() / u"registry.ini",
              text.replace("Install_Path=", "Local=dword:00000001\r\nInstall_Path="));
    EXPECT_EQ(found(), u"present supported"_s);
    EXPECT_TRUE(session.state<WeatherState>().ASv6Local && user.told().isEmpty());
    EXPECT_EQ(session.state<WeatherState>().ASv6ExportDate, QDateTime(QDate(2007, 10, 14), QTime(14, 7)));
    install.files.remove(exported);
    install.files.makeFolder(exported);
    EXPECT_EQ(found(), u"absent supported"_s);
    EXPECT_EQ(user.told(), QStringList{u"Error|Morvane Error|Error opening file"_s});
}

TEST_F(ActiveSkyTest, itsFileGivesAllItsLinesAndTheCycleItsOwnTime) {
    makeSupported();
    EXPECT_FALSE(session.state<WeatherState>().ASv6Imported);
    install.clock.now = QDateTime({2007, 5, 31}, {0, 0}, Qt::UTC).toLocalTime(); // a moment of every zone
    writeExport("EHAM 1\r\nKSEA 141353Z\r\nLFPG 4", {14, 7});
    session.rows<clsWxFinders>() = std::make_unique<clsWxFinders>(session);
    ASSERT_TRUE(clsWxFinderData(session).GetWeatherFromASv6());
    EXPECT_EQ(session.rows<clsWxFinders>()->Count(), 3) << "the last one, too";
    const auto ksea = session.rows<clsWxFinders>()->GetKey(u"KSEA"_s);
    EXPECT_EQ(ksea->WxFinderCycle + ksea->WxFinderMonth + ksea->WxFinderYear, u"14May2007"_s)
        << "the file's hour, the clock's month and year";
    EXPECT_EQ(session.state<WeatherState>().MetarCycleDay, 14);
    EXPECT_TRUE(session.state<WeatherState>().ASv6Imported);
    EXPECT_EQ(user.calls.filter(u"done "_s).last(),
              u"done 3 reports of 13:00Z, 14 May; the youngest is 16 days old"_s);
    install.files.remove(exported);
    const auto* before = session.rows<clsWxFinders>().get();
    EXPECT_FALSE(clsWxFinderData(session).GetWeatherFromASv6());
    EXPECT_EQ(session.rows<clsWxFinders>().get(), before);
    ASSERT_EQ(user.told().size(), 1);
    EXPECT_TRUE(user.told()[0].startsWith(u"Exclamation|File Download Error!|File not found"_s));
}

TEST_F(ActiveSkyTest, isStartedOnlyHereAndOnlyWhenItDoesNotRun) {
    makeSupported();
    writeExport("EHAM 1\n", {14, 7});
    for (const auto& [isLocal, isRunning, starts] :
         {std::tuple{false, false, 0}, {true, true, 0}, {true, false, 1}}) {
        session.state<WeatherState>().ASv6Local = isLocal;
        platform.isRunning = isRunning;
        platform.onRest = [this] { writeExport("EHAM 1\n", {13, 9}); }; // going back counts, too
        refreshWeather(session, platform);
        EXPECT_EQ(platform.starts, starts);
        EXPECT_EQ(session.rows<clsWxFinders>()->Count(), 1);
    }
    EXPECT_EQ(session.state<MetarRequest>().metarRequestText,
              u"Do you wish Morvane import and decode the latest METAR cycle from Active Sky?"_s);
    EXPECT_EQ(platform.rests, 16) << "one look, and fifteen seconds for the file to be whole";
    EXPECT_FALSE(session.state<WeatherState>().ASv6Busy || user.isMessageVisible());
}

#ifndef Q_OS_WIN
TEST_F(ActiveSkyTest, whatARunnerRunsIsKnownByItsName) {
    const QString title = u"AS %1"_s.arg(QCoreApplication::applicationPid());
    EXPECT_FALSE(systemActiveSky().isWindowOpen(title));
    QProcess runner;
    runner.start(u"sh"_s, {u"-c"_s, u"echo; read line; true"_s,
                           u"Z:\\Program Files\\"_s + title.toLower() + u".EXE"_s});
    ASSERT_TRUE(runner.waitForReadyRead()); // a program has started a little before it has its words
    EXPECT_TRUE(systemActiveSky().isWindowOpen(title));
    EXPECT_FALSE(systemActiveSky().isWindowOpen(title.mid(1))) << "no part of a name";
    runner.closeWriteChannel();
    ASSERT_TRUE(runner.waitForFinished());
    EXPECT_FALSE(systemActiveSky().isWindowOpen(title));
}

#endif

TEST_F(ActiveSkyTest, aMissingFileIsWaitedForUntilACancelOrTheEndOfTheProgram) {
    makeSupported();
    session.state<WeatherState>().ASv6Local = true;
    const auto cancel = [this] { user.answers().cancelRequested = true; };
    const auto leave = [this] { session.ExitInProgress.moveTo(ExitStage::leaving); };
    const std::pair<int, std::function<void()>> cases[] = {{3, cancel}, {40, leave}, {45, [] {}}};
    for (int minute = 0; const auto& [leftAt, action] : cases) {
        ++minute;
        session.ExitInProgress.moveTo(ExitStage::running);
        session.rows<clsWxFinders>().reset();
        platform.rests = 0;
        platform.onRest = [&, at = leftAt, act = action] {
            EXPECT_TRUE(user.messages.back().withCancel && session.state<WeatherState>().ASv6Busy);
            if (platform.rests == 30) writeExport("EHAM 1\n", {14, minute});
            if (platform.rests == at) act();
        };
        refreshWeather(session, platform);
        EXPECT_EQ(platform.rests, leftAt);
        EXPECT_EQ(session.rows<clsWxFinders>() != nullptr, leftAt == 45) << "nothing is read on the way out";
        EXPECT_FALSE(user.isMessageVisible() || session.state<WeatherState>().ASv6Busy ||
                     user.answers().cancelRequested);
    }
}

} // namespace
} // namespace morvane::test
