#include "simulator/get_ready.h"

#include "core/failure_report.h"
#include "core/folder_room.h"
#include "core/job.h"
#include "core/numbers.h"
#include "ground/ground_run_size.h"
#include "ground/ground_selection.h"
#include "sets/cloud_cover.h"
#include "simulator/backup_files.h"
#include "simulator/backup_list.h"
#include "simulator/backups.h"
#include "simulator/kept_room.h"
#include "simulator/ready_sets.h"
#include "simulator/stock_requests.h"
#include "sky/sky_selection.h"
#include "weather/report_age.h"
#include "weather/weather_refresh.h"

#include <algorithm>

namespace morvane {

namespace {

/// Reports that are younger need not be fetched again.
constexpr qint64 freshMinutes = 60;

const clsBackup* wholeBackup(Session& session) {
    if (!session.rows<clsBackups>() && !clsBackups::reload(session)) return nullptr;
    for (const auto& backup : *session.rows<clsBackups>())
        if (isBackupComplete(session, backup->BackupName)) return backup.get();
    return nullptr;
}

QString backupText(Session& session) {
    const clsBackup* backup = wholeBackup(session);
    if (!backup) return u"The textures of your simulator as they are now"_s;
    qsizetype textures = 0;
    for (const BackupPlace& place : backupPlaces(session, backup->BackupName))
        textures += session.files.list(place.backup, u"*.bmp"_s).size();
    const FolderRoom room = roomBelow(session.files, backupFolder(session, backup->BackupName));
    return u"%1, %2, in Backup\\%3"_s.arg(countText(textures, u"file"_s), keptText(room.bytes),
                                          backup->BackupName);
}

BaseTextures texturesInUse(Session& session) {
    return hasKeptStock(session) ? BaseTextures::own : BaseTextures::delivered;
}

QString setsText(Session& session, int setsOfEach) {
    const auto missing = std::ssize(missingReadySets(session, setsOfEach));
    return missing == 0 ? u"Every weather has its sets"_s : countText(missing, u"set"_s) + u" to be made"_s;
}

/// "Set 7 of 20: ground, Mostly Cloudy".
QString setText(const ReadySet& set, int number, int total) {
    return u"Set %1 of %2: %3, %4"_s.arg(QString::number(number), QString::number(total),
                                         set.isGround ? u"ground"_s : u"sky"_s,
                                         cloudCover(set.cloudNumber)->word);
}

/// The sky's files are small beside those of the ground.
bool hasRoom(Session& session, const std::vector<ReadySet>& sets) {
    const auto ground = std::ranges::count_if(sets, &ReadySet::isGround);
    if (ground == 0) return true;
    RunSize run = groundRunSize(session, static_cast<int>(ground));
    run.isQuestionWanted = false;
    return session.user.allowsRun(run);
}

} // namespace

QString readyCaption(ReadyStep step, int setsOfEach) {
    switch (step) {
    case ReadyStep::simulator:
        return u"Simulator found"_s;
    case ReadyStep::backup:
        return u"Backup of my textures"_s;
    case ReadyStep::baseTextures:
        return u"Base textures for new sets"_s;
    case ReadyStep::sets:
        return (setsOfEach == usualSetsOfEach ? u"Three sets"_s : countText(setsOfEach, u"set"_s)) +
               u" for each cloud cover, ground and sky"_s;
    case ReadyStep::weather:
        break;
    }
    return u"Weather can be reached"_s;
}

bool GetReady::isDone(ReadyStep step) const {
    switch (step) {
    case ReadyStep::simulator:
        break; // the program does not start without it
    case ReadyStep::backup:
        return wholeBackup(session_) != nullptr;
    case ReadyStep::baseTextures:
        return wishes_.baseTextures == texturesInUse(session_) ||
               wishes_.baseTextures == BaseTextures::asTheyAre;
    case ReadyStep::sets:
        return missingReadySets(session_, wishes_.setsOfEach).empty();
    case ReadyStep::weather:
        return youngestReportAge(session_).value_or(freshMinutes) < freshMinutes;
    }
    return true;
}

QString GetReady::textOf(ReadyStep step) const {
    switch (step) {
    case ReadyStep::simulator:
        return session_.FSPath.native();
    case ReadyStep::backup:
        return backupText(session_);
    case ReadyStep::baseTextures:
        return texturesInUse(session_) == BaseTextures::own ? u"My simulator's own"_s
                                                            : u"The delivered ones"_s;
    case ReadyStep::sets:
        return setsText(session_, wishes_.setsOfEach);
    case ReadyStep::weather:
        break;
    }
    return isDone(step) ? reportAgeText(session_) : u"The first source that answers is taken"_s;
}

ReadyLine GetReady::lineOf(ReadyStep step) const {
    ReadyLine line;
    reportFailures(session_.user, morvaneError, [&] {
        line = {isDone(step) ? ReadyMark::done : ReadyMark::waiting, textOf(step)};
    });
    return line;
}

bool GetReady::run(const Told& told) {
    bool isReady = true;
    for (std::size_t index = 0; index < readyStepCount && !isCancelled_; ++index) {
        const auto step = static_cast<ReadyStep>(index);
        ReadyLine line = lineOf(step);
        if (line.mark != ReadyMark::done && !wishes_.isWanted[index]) {
            line.mark = ReadyMark::leftOut;
        } else if (line.mark != ReadyMark::done) {
            told(step, {ReadyMark::working, line.text});
            bool isDone = false; // whoever shows the steps has to live until here
            reportFailures(session_.user, morvaneError, [&] { isDone = doStep(step, told); });
            line = lineOf(step);
            if (!isDone) line.mark = isCancelled_ ? ReadyMark::waiting : ReadyMark::failed;
            isReady = isReady && isDone;
        }
        told(step, line);
    }
    return isReady && !isCancelled_;
}

void GetReady::cancel() {
    isCancelled_ = true;
    session_.user.answers().cancelRequested = true;
}

bool GetReady::doStep(ReadyStep step, const Told& told) {
    switch (step) {
    case ReadyStep::simulator:
        break;
    case ReadyStep::backup: {
        const auto backup = createBackup(session_, false, true);
        session_.user.hideMessage();
        return backup && backup->isComplete();
    }
    case ReadyStep::baseTextures:
        return prepareBaseTextures();
    case ReadyStep::sets:
        return makeSets(told);
    case ReadyStep::weather:
        return refreshUnasked(session_) && !session_.state<WeatherState>().FlyNowDisabled;
    }
    return true;
}

bool GetReady::prepareBaseTextures() {
    if (wishes_.baseTextures == BaseTextures::delivered) return restoreStock(session_, true).has_value();
    const auto report = importSimulatorStock(session_, true);
    return report && report->files > 0 && !report->isCancelled && report->failure.isEmpty();
}

bool GetReady::makeSets(const Told& told) {
    Job job(session_, u"making of the first sets"_s);
    if (!job) return false;
    bool isWhole = true;
    const bool cameToItsEnd = reportFailures(session_.user, morvaneError, [&] {
        const std::vector<ReadySet> sets = missingReadySets(session_, wishes_.setsOfEach);
        const int total = static_cast<int>(sets.size());
        isWhole = hasRoom(session_, sets);
        for (int i = 0; i < total && isWhole; ++i) {
            const ReadySet& set = sets[static_cast<std::size_t>(i)];
            told(ReadyStep::sets, {ReadyMark::working, setText(set, i + 1, total), 100.0 * i / total});
            isWhole = makeReadySet(session_, job, set, i + 1, total) && !job.isCancelled();
        }
        isCancelled_ = isCancelled_ || job.isCancelled();
    });
    session_.user.hideMessage();
    session_.state<GroundSelection>().RefreshGroundList = session_.state<SkySelection>().RefreshSkyList =
        true;
    return cameToItsEnd && isWhole;
}

} // namespace morvane
