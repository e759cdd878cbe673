#include "simulator/backup_files.h"

#include "core/attempts.h"
#include "core/failure_report.h"
#include "core/folder_room.h"
#include "core/numbers.h"
#include "core/safe_copy.h"
#include "simulator/backups.h"

#include <algorithm>

namespace morvane {

namespace {

const QString progressTitle = u"Creating New Backup"_s;

bool isWanted(Session& session, bool isFirstRun) {
    if (!isFirstRun)
        return session.user.ask(
            Question::backup, u"Create New Backup?"_s,
            u"Do you wish Morvane to carry out a backup of your FS Textures?  This will "
            "create a new backup set that can be reinstalled at a later time if required"_s);
    session.user.showMessage(
        {MessageKind::information, u"Creating Backup"_s,
         u"Morvane has detected that this is the first time that Morvane has been started.  Morvane will now "
         "backup your Flight Simulator Textures.  Please Wait......."_s});
    return true;
}

/// Nothing but parts of copies, so nothing is lost by filling it. Raises when that cannot be seen.
bool holdsNoFile(Session& session, const FilePath& folder) {
    const QStringList names = session.files.list(folder, u"*"_s);
    return std::ranges::all_of(names, [](const QString& name) { return name.endsWith(partialCopySuffix); });
}

bool holdsNoTexture(Session& session, const QString& name) {
    const auto [world, addOn] = backupPlaces(session, name);
    return holdsNoFile(session, backupFolder(session, name)) && holdsNoFile(session, world.backup) &&
           holdsNoFile(session, addOn.backup);
}

/// The row of a first run that did not come to its end: its list says so, or it did not come to a list.
/// Raises when that cannot be seen: a second backup is not begun then.
std::optional<clsBackup> unfinishedFirstBackup(Session& session) {
    for (const auto& backup : *session.rows<clsBackups>()) {
        const QString& name = backup->BackupName;
        if (!FilePath::isChildName(name)) continue; // a damaged row has no folder
        const BackupList list = BackupList::read(session, name);
        if (list.isOfFirstRun() || (!list.isThere() && holdsNoTexture(session, name))) return *backup;
    }
    return std::nullopt;
}

/// A folder of that name is another backup, of a store that was lost: it steps aside and is never written to.
void clearTheWay(Session& session, const QString& name) {
    const FilePath folder = backupFolder(session, name);
    if (!session.files.exists(folder)) return;
    int number = 1;
    const auto aside = [&] { return backupFolder(session, name + u" kept %1"_s.arg(number)); };
    while (session.files.exists(aside()))
        ++number;
    session.files.rename(folder, aside());
}

/// A new row; nothing after the message of a failure.
std::optional<clsBackup> addBackup(Session& session) {
    clsBackup backup{u"Backup"_s, 0, session.clock.localTime(), true};
    if (!session.rows<clsBackups>()->Save(backup)) return std::nullopt;
    clearTheWay(session, backup.BackupName);
    return backup;
}

/// What is still to be written of it, of a first run that is gone on with the rest.
RunSize sizeOf(Session& session, const std::optional<clsBackup>& begun) {
    RunSize run;
    int textures = 0;
    for (const BackupPlace& place : backupPlaces(session, u"new"_s)) {
        const FilePath folder = place.simulator.resolved();
        for (const QString& name : session.files.list(folder, u"*.bmp"_s)) {
            attempt([&] { run.bytes += session.files.size(folder.exactChild(name)); }); // it will be missing
            ++textures;
        }
    }
    if (begun) run.bytes -= roomBelow(session.files, backupFolder(session, begun->BackupName)).bytes;
    run.what = u"A backup of "_s + countText(textures, u"texture"_s);
    run.freeBytes = session.files.freeSpace(session.BackupPath);
    return run;
}

/// Where it is refused, that is told in the place of the progress.
bool hasRoom(Session& session, const RunSize& run) {
    if (run.fits()) return true;
    session.user.hideMessage();
    return session.user.allowsRun(run);
}

std::optional<BackupReport> runInRow(Session& session, const Job& job, bool isFirstRun) {
    if (!session.rows<clsBackups>() && !clsBackups::reload(session)) return std::nullopt;
    std::optional<clsBackup> backup;
    if (isFirstRun) backup = unfinishedFirstBackup(session);
    if (!hasRoom(session, sizeOf(session, backup))) return std::nullopt;
    if (!backup) backup = addBackup(session);
    if (!backup) return std::nullopt;
    for (const BackupPlace& place : backupPlaces(session, backup->BackupName))
        session.files.makeFolder(place.backup);
    BackupReport report = BackupRun(session, job, backup->BackupName, isFirstRun).run();
    report.takenAt = backup->BackupDateTime;
    return report;
}

std::optional<BackupReport> runBackup(Session& session, bool isFirstRun) {
    std::optional<BackupReport> report;
    const Job job(session, u"backup"_s);
    if (!job) return report;
    session.user.showMessage({MessageKind::information, progressTitle,
                              u"Morvane is backing up your Flight Simulator Texture Files.  This may take a "
                              "few minutes.  Please wait......."_s,
                              false, true, true});
    session.user.updateProgress({}, {}, 0);
    reportFailures(session.user, morvaneError, [&] { report = runInRow(session, job, isFirstRun); });
    session.user.updateProgress({}, {}, 100);
    return report;
}

void tellPartial(Session& session, const BackupReport& report) {
    QString text = report.isCancelled ? u"The backup was cancelled.  "_s : QString();
    text += u"The backup %1 is marked as partial"_s.arg(report.name);
    if (report.saved < report.files)
        text += u", as it lacks %1 of %2"_s.arg(countText(report.files - report.saved),
                                                countText(report.files, u"texture"_s));
    else if (!report.isCancelled)
        text += u", as its list could not be written"_s;
    session.user.hideMessage();
    session.user.showMessage({MessageKind::exclamation, progressTitle, text + u'.'});
}

DoneLine doneLine(const BackupReport& report) {
    const QString textures = countText(report.files, u"texture"_s);
    const bool hasAll = report.saved == report.files;
    const QString saved = hasAll ? textures : countText(report.saved) + u" of "_s + textures;
    const QString remark = report.name + u", "_s + dayText(report.takenAt);
    return {saved + u" backed up"_s, remark, !report.isComplete()};
}

} // namespace

std::optional<BackupReport> createBackup(Session& session, bool isFirstRun, bool isConfirmed) {
    if (session.jobRunning || !(isConfirmed || isWanted(session, isFirstRun))) return std::nullopt;
    const std::optional<BackupReport> report = runBackup(session, isFirstRun);
    if (report && !report->isComplete()) tellPartial(session, *report);
    return report;
}

void backupOnRequest(Session& session) {
    const std::optional<BackupReport> report = createBackup(session, false);
    session.user.hideMessage();
    session.user.refreshScreen(Screen::frm_Main);
    if (report) session.user.tellDone(doneLine(*report));
}

bool isBackupComplete(Session& session, const QString& name) {
    return BackupList::readIfReadable(session, name).isComplete();
}

} // namespace morvane
