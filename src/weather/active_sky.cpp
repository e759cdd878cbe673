#include "weather/active_sky.h"

#include "core/file_helpers.h"
#include "core/registry.h"
#include "weather/reports.h"
#include "weather/weather_state.h"

namespace morvane {

namespace {

constexpr int writingSeconds = 15;

/// Wanted: each part is tested by itself, so 7.0.1 is not supported.
bool isSupported(const QString& version) {
    return versionPart(version, 0) >= 6 && versionPart(version, 1) >= 0 && versionPart(version, 2) >= 5121;
}

QDateTime timeOf(const QString& text) {
    return QDateTime::fromString(text, u"yyyy/MM/dd hh:mm:ss"_s);
}

/// What is missing of the program; nothing when it is there.
std::optional<Message> programProblem(Session& session, QString& path) {
    const auto problem = [](const QString& title, const QString& text) {
        return Message{MessageKind::exclamation, title, text};
    };
    path = StripBackslash(path);
    if (path.isEmpty() || !session.files.isFolder(FilePath(path)))
        return problem(
            u"Path not found"_s,
            u"ASv6.exe could not be detected at the path found in your registry setting. Please check "
            "that the computer where ASv6 is installed is switched on or that the path "_s +
                path + u" actually exists"_s);
    if (!session.files.exists(FilePath(path) / u"ASv6.exe"))
        return problem(
            u"ASv6.exe not found"_s,
            u"ASv6.exe could not be detected at the path found in your registry setting, please check "
            "the path is correct or reinstall ASv6"_s);
    return std::nullopt;
}

void findExportFile(Session& session) {
    WeatherState& weather = session.state<WeatherState>();
    // So any real cycle counts as newer than none.
    weather.ASv6ExportDate = QDateTime(QDate(1900, 1, 1), QTime(1, 1, 1));
    const FilePath file = exportCycleFile(session);
    if (!session.files.exists(file)) return;
    weather.ASv6ExportDate = timeOf(fileTimeText(file));
    weather.ASv6Present = weather.ASv6ExportDate.isValid();
    if (!weather.ASv6Present) weather.ASv6Problem = unreadableFileMessage();
}

/// Nobody knows how long it takes, so there is no bar, and its Cancel needs no question: nothing is lost.
Message waitMessage(const QString& title) {
    return {MessageKind::progress,
            title,
            u"Active Sky is processing your weather data. Please wait..........."_s,
            false,
            true,
            true};
}

} // namespace

void findActiveSky(Session& session) {
    WeatherState& weather = session.state<WeatherState>();
    weather.ASv6VersionOK = false;
    weather.ASv6Problem.reset();
    QString path = StripBackslash(
        session.registry.GetRegString(HKEY_LOCAL_MACHINE_ROOT, activeSkyKey, u"Install_Path"_s));
    weather.ASv6Present = !path.isEmpty();
    if (!weather.ASv6Present) return;
    weather.ASv6Local = session.registry.RegValueIsDword(HKEY_LOCAL_MACHINE_ROOT, activeSkyKey, u"Local"_s);
    weather.ASv6Problem = programProblem(session, path);
    weather.ASv6Present = !weather.ASv6Problem;
    weather.ASv6Path = FilePath(path);
    if (!weather.ASv6Present) return;
    weather.ASv6VersionOK = isSupported(getFileVersionText(session.files, weather.ASv6Path / u"ASv6.exe"));
    if (weather.ASv6VersionOK) findExportFile(session);
}

void tellActiveSkyProblem(Session& session) {
    if (session.state<WeatherState>().ASv6Problem)
        session.user.showMessage(*session.state<WeatherState>().ASv6Problem);
}

FilePath exportCycleFile(const Session& session) {
    return session.state<WeatherState>().ASv6Path / u"Export_Cycle.dat";
}

QDateTime exportCycleTime(Session& session, const FilePath& file) {
    return timeOf(GetFileTime(session, file));
}

Reported ActiveSky::refresh() {
    if (session_.state<WeatherState>().ASv6Local && !platform_.isWindowOpen(u"ASv6"_s)) {
        const QDateTime baseTime = session_.files.exists(exportCycleFile(session_))
                                       ? getExportCycleTime()
                                       : session_.clock.localTime();
        if (!platform_.startASv6(session_) || !waitForExportCycle(baseTime)) return false;
    }
    return clsWxFinderData(session_, u"ASv6.jpg"_s).GetWeatherFromASv6();
}

bool ActiveSky::isExportCycleUpdated(const QDateTime& baseTime) {
    return session_.files.exists(exportCycleFile(session_)) && getExportCycleTime() != baseTime;
}

QDateTime ActiveSky::getExportCycleTime() {
    return exportCycleTime(session_, exportCycleFile(session_));
}

bool ActiveSky::waitForExportCycle(const QDateTime& baseTime) {
    session_.state<WeatherState>().ASv6Busy = true;
    session_.user.answers().cancelRequested = false;
    const bool hasCome = waitForNewTime(baseTime) && giveTimeToWrite();
    session_.state<WeatherState>().ASv6Busy = false;
    session_.user.answers().cancelRequested = false;
    if (!hasCome) session_.user.hideMessage();
    return hasCome;
}

bool ActiveSky::waitForNewTime(const QDateTime& baseTime) {
    Message message = waitMessage(u"ASv6 Processing Wx Data"_s);
    message.picture = u"ASv6Process.gif"_s;
    session_.user.showMessage(message);
    return waitUntil([&] { return isExportCycleUpdated(baseTime); });
}

/// A new time means that Active Sky has begun to write. The message loop runs on meanwhile, with every window
/// but the message's blocked by it.
bool ActiveSky::giveTimeToWrite() {
    Message message = waitMessage(u"......ASv6 Writing File......"_s);
    message.hasQuietTitle = true;
    session_.user.showMessage(message);
    const QDateTime end = session_.clock.utcTime().addSecs(writingSeconds);
    return waitUntil([&] { return session_.clock.utcTime() >= end; });
}

bool ActiveSky::waitUntil(const std::function<bool()>& isOver) {
    while (!isWorkCancelled(session_)) {
        if (isOver()) return true;
        session_.user.pumpMessages();
        platform_.rest();
    }
    return false;
}

} // namespace morvane
