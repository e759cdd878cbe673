#include "simulator/backup_removal.h"

#include "core/failure_report.h"
#include "core/folder_room.h"
#include "core/numbers.h"
#include "core/run_size.h"
#include "simulator/backup_losses.h"
#include "simulator/backups.h"

namespace morvane {

namespace {

QString question(Session& session, const clsBackup& backup) {
    const QString& name = backup.BackupName;
    QString text = u"Do you wish to remove the backup %1 of %2?"_s.arg(name, dayText(backup.BackupDateTime));
    if (!FilePath::isChildName(name)) return text;
    const FolderRoom room = roomBelow(session.files, backupFolder(session, name));
    return text +
           u"  Its %1 can then no longer be put back, and %2 of the disk will be free.\n\nA backup that "
           "holds the last copy of a texture of your own stays."_s.arg(countText(room.files, u"file"_s),
                                                                       spaceText(room.bytes));
}

void tellLosses(Session& session, const QString& name, const QStringList& lost) {
    session.user.hideMessage();
    const QString files = countText(lost.size()) + u" of your own files "_s;
    const QString verb = lost.size() == 1 ? u"is"_s : u"are"_s;
    session.user.showMessage(
        {MessageKind::exclamation, removalTitle,
         u"The backup %1 stays, as %2 nowhere else: %3.\n\nIt can go when they are somewhere else as well, "
         "say in Flight Simulator after \"Restore Backup\"."_s.arg(name, files + verb, namesText(lost))});
}

void emptyFolder(FileSystem& files, const FilePath& folder) {
    for (const FilePath& file : filesIn(files, folder, u"*"_s))
        files.remove(file);
}

/// From the first step on it is a partial one. The list of what is ours goes behind the textures: those that
/// a cut leaves must not be put back as the pilot's.
void removeFiles(Session& session, const QString& name) {
    const FilePath folder = backupFolder(session, name);
    BackupList::markPartial(session, name);
    for (const BackupPlace& place : backupPlaces(session, name)) {
        emptyFolder(session.files, place.backup);
        if (session.files.isFolder(place.backup)) session.files.removeFolder(place.backup);
    }
    emptyFolder(session.files, folder);
    if (session.files.isFolder(folder)) session.files.removeFolder(folder);
}

/// A row whose name no folder can have, of a store that was edited by hand, is all there is.
bool mayGo(Session& session, const Job& job, const QString& name) {
    if (!FilePath::isChildName(name)) return true;
    const auto lost = BackupLosses(session, name).find(job);
    if (lost && !lost->isEmpty()) tellLosses(session, name, *lost);
    return lost && lost->isEmpty();
}

/// The row comes last, so that what is left of a backup can be seen and removed.
bool removeInside(Session& session, const Job& job, const QString& name) {
    if (!clsBackups::reload(session)) return false;
    const auto backup = findTrimmedName(*session.rows<clsBackups>(), name);
    if (!backup || !mayGo(session, job, backup->BackupName)) return false;
    if (FilePath::isChildName(backup->BackupName)) removeFiles(session, backup->BackupName);
    return session.rows<clsBackups>()->RemoveItem(keyOf(*backup));
}

} // namespace

Reported removeBackup(Session& session, const QString& name) {
    Job job(session, u"removal of a backup"_s, Job::Start::behindQuestions);
    if (!job || !clsBackups::reload(session)) return false;
    const auto backup = findTrimmedName(*session.rows<clsBackups>(), name);
    if (!backup || !session.user.ask(Question::backup, removalTitle, question(session, *backup)) ||
        !job.begin())
        return false;
    session.user.showMessage(
        {MessageKind::progress, removalTitle,
         u"Morvane is looking for the textures of %1 in other places.  Please wait......."_s.arg(name), false,
         true, true});
    bool isRemoved = false;
    reportFailures(session.user, morvaneError, [&] { isRemoved = removeInside(session, job, name); });
    session.user.hideMessage();
    session.user.refreshScreen(Screen::frm_Main);
    if (isRemoved) session.user.tellDone({name + u" removed"_s});
    return isRemoved;
}

} // namespace morvane
