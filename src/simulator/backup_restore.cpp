#include "simulator/backup_restore.h"

#include "core/attempts.h"
#include "core/disk_spelling.h"
#include "core/failure_report.h"
#include "core/numbers.h"
#include "sets/simulator_copy.h"
#include "sets/simulator_note.h"
#include "sets/undo_step.h"
#include "simulator/backups.h"
#include "simulator/checked_copies.h"

#include <deque>

namespace morvane {

namespace {

std::vector<FileCopy> texturesOf(Session& session, const QString& name) {
    std::vector<FileCopy> copies;
    const auto [world, addOn] = backupPlaces(session, name);
    addTextures(session, world, copies);
    if (session.files.isFolder(addOn.simulator.parent())) addTextures(session, addOn, copies);
    return copies;
}

/// Which of the report's numbers the file counts in.
int RestoreReport::*putBack(Session& session, SimulatorCopier& copier, const FileCopy& copy, bool isOurs,
                            const CheckedFile& checked) {
    const bool isDone = attempt([&] {
        if (isOurs) copier.announce(copy);
        copier.copy(copy, checked.there);
    });
    if (isDone) return &RestoreReport::putBack;
    bool isReadOnly = false;
    attempt([&] { isReadOnly = session.files.isReadOnly(copy.target); });
    return isReadOnly ? &RestoreReport::readOnly : &RestoreReport::failed;
}

/// A sound file of the backup that does not stand yet; of the others the report has the number.
std::optional<CheckedFile> fileToCome(const BackupList& list, const FileCopy& copy,
                                      const std::optional<CheckedFile>& source, RestoreReport& report) {
    if (!source)
        ++report.failed;
    else if (list.isDamaged(copy.source, source->print))
        ++report.damaged;
    else if (source->stands())
        ++report.standing;
    else
        return source;
    return std::nullopt;
}

/// In two rounds, so that the disk is waited for once: what stands there is kept before the first file comes.
RestoreReport copyBack(Session& session, const QString& name) {
    const std::vector<FileCopy> copies = texturesOf(session, name);
    const BackupList list = BackupList::readIfReadable(session, name);
    SimulatorCopier copier(session);
    forgetLastStep(session); // what it speaks of is replaced
    copier.clearStrays(copies);
    RestoreReport report;
    CheckAhead sources(copies);
    CopyWalk walk(session, copies, 2);
    std::deque<std::optional<CheckedFile>> toCome;
    std::vector<FileCopy> overUnknown;
    walk.round(nullptr, [&](const FileCopy& copy) {
        const auto& file = toCome.emplace_back(fileToCome(list, copy, sources.next(), report));
        if (file && file->there && !copier.isKnown(copy, file->there->print)) overUnknown.push_back(copy);
    });
    copier.keepAll(overUnknown);
    walk.round(nullptr, [&](const FileCopy& copy) {
        const std::optional<CheckedFile> file = toCome.front();
        toCome.pop_front();
        if (file) ++(report.*putBack(session, copier, copy, list.isOurs(copy.source, file->print), *file));
    });
    session.user.hideMessage();
    copier.finish(); // may wait for the disk
    return report;
}

DoneLine doneLine(const RestoreReport& report) {
    DoneLine line{countText(report.putBack) + u" put back"_s};
    const auto add = [&](int count, const QString& what) {
        if (count > 0) line.text += u", "_s + countText(count) + what;
    };
    add(report.readOnly, u" read-only left"_s);
    add(report.damaged, u" damaged left out"_s);
    add(report.failed, u" could not be replaced"_s);
    line.hasLeftOut = report.readOnly + report.damaged + report.failed > 0;
    if (report.standing > 0) line.remark = countText(report.standing) + u" were there already"_s;
    return line;
}

/// False when there is none to choose or none was chosen.
bool chooseBackup(Session& session) {
    if (!session.rows<clsBackups>() && !clsBackups::reload(session)) return false;
    BackupChoice& choice = session.state<BackupChoice>();
    choice.backups.clear();
    choice.chosenBackup.clear();
    choice.backupConfirmed = false;
    for (const auto& backup : *session.rows<clsBackups>())
        choice.backups.push_back({backup->BackupName, backup->BackupDateTime,
                                  BackupList::readIfReadable(session, backup->BackupName).isComplete()});
    if (choice.backups.empty()) return false;
    session.user.showModal(Screen::frm_BackupList);
    return choice.backupConfirmed && !choice.chosenBackup.isEmpty();
}

} // namespace

void addTextures(Session& session, const BackupPlace& place, std::vector<FileCopy>& copies) {
    const FilePath simulator = place.simulator.resolved();
    DiskSpelling spelling(session.files, simulator);
    const FilePath backup = place.backup.resolved();
    const QStringList names = session.files.list(backup, u"*.bmp"_s);
    QHash<QString, int> spellings;
    for (const QString& name : names)
        ++spellings[name.toCaseFolded()];
    for (const QString& name : names) {
        if (!FilePath::isChildName(name)) continue; // put there by another hand
        const bool isAlone = spellings.value(name.toCaseFolded()) == 1;
        const QString own = isAlone ? spelling.find(name).fileName() : name;
        copies.push_back({backup.exactChild(name), simulator.exactChild(own)});
    }
}

std::optional<RestoreReport> restoreBackup(Session& session, const QString& name) {
    std::optional<RestoreReport> report;
    const Job job(session, u"restore of a backup"_s);
    if (!job || !claimSimulator(session)) return report;
    reportFailures(session.user, morvaneError, [&] { report = copyBack(session, name); });
    session.user.updateProgress({}, {}, 100);
    return report;
}

void restoreBackupOnRequest(Session& session) {
    if (!chooseBackup(session)) return;
    const QString name = session.state<BackupChoice>().chosenBackup;
    // The double quote at the end belongs to the text.
    session.user.showMessage(
        {MessageKind::progress, u"Morvane Information"_s,
         u"Restoring backup "_s + name + u" to Flight Simulator.  Please stand by...\""_s, false, false,
         true});
    const std::optional<RestoreReport> report = restoreBackup(session, name);
    session.user.hideMessage();
    if (report) session.user.tellDone(doneLine(*report));
}

} // namespace morvane
