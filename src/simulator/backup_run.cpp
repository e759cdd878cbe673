#include "simulator/backup_run.h"

#include "core/attempts.h"
#include "core/safe_copy.h"
#include "sets/simulator_copy.h"

namespace morvane {

namespace {

const QString ending = u".bmp"_s;

} // namespace

BackupRun::BackupRun(Session& session, const Job& job, const QString& name, bool isFirstRun)
    : session_(session), job_(job), name_(name), isFirstRun_(isFirstRun) {}

BackupReport BackupRun::run() {
    planAll();
    if (isFirstRun_) BackupList::markFirstRun(session_, name_);
    list_.writeOurs(session_, name_);
    CopyWalk walk(session_, copies_, 2);
    BackupReport report;
    report.name = name_;
    report.files = static_cast<int>(copies_.size()) + missing_;
    report.isCancelled = !copyAll(walk) || !checkAll(walk);
    report.saved = saved_;
    report.isWritten = !report.isCancelled && writeList();
    return report;
}

void BackupRun::planAll() {
    const auto readOriginals = [&] { originals_.emplace(originalsOf(session_)); };
    if (isFirstRun_)
        readOriginals();
    else
        attempt(readOriginals);
    for (const BackupPlace& place : backupPlaces(session_, name_))
        plan({place.simulator, place.backup.resolved()});
}

void BackupRun::plan(const BackupPlace& place) {
    attempt([&] { removePartialCopies(session_.files, place.backup); });
    for (const QString& name : session_.files.list(place.simulator, u'*' + ending)) {
        FilePath own, copy;
        // A name that the system takes may be none that a path of ours can have.
        const bool isPath = attempt([&] {
            own = place.simulator.child(name);
            copy = place.backup.exactChild(name);
        });
        if (isPath)
            plan(own, copy);
        else
            miss(place, name);
    }
    for (int left = session_.files.namelessFiles(place.simulator, ending); left > 0; --left)
        miss(place, u"?"_s);
}

/// The first run takes the pilot's where one of ours may stand; later ones remember which are ours.
void BackupRun::plan(const FilePath& own, const FilePath& copy) {
    FilePath source = own;
    if (isFirstRun_) attempt([&] { source = originals_->keptFile(own).value_or(own); });
    copies_.push_back({source, copy});
    if (!originals_) return;
    for (const OriginalFact& ours : originals_->recordOf(own).ours)
        list_.addOurs(copy, ours.print);
}

void BackupRun::miss(const BackupPlace& place, const QString& name) {
    list_.addMissing(place.backup, name);
    ++missing_;
}

/// False when it was cancelled.
bool BackupRun::copyAll(CopyWalk& walk) {
    return walk.round(&job_, [&](const FileCopy& copy) { saved_ += attempt([&] { this->copy(copy); }); });
}

/// What a run that was cut short has brought stands already.
void BackupRun::copy(const FileCopy& copy) {
    if (!session_.files.exists(copy.target) || !checkCopy(copy).stands())
        replaceFile(session_.files, copy.source, copy.target);
}

/// Only now is a file taken for saved, when the copy has been read again. False when it was cancelled.
bool BackupRun::checkAll(CopyWalk& walk) {
    CheckAhead checks(copies_);
    int saved = 0;
    const bool isWhole = walk.round(&job_, [&](const FileCopy& copy) {
        const std::optional<CheckedFile> file = checks.next();
        if (file && file->stands()) {
            list_.add(copy.target, file->print);
            standing_.push_back(copy.target);
            ++saved;
        } else {
            list_.addMissing(copy.target.parent(), copy.target.fileName());
            unwritten_ += file.has_value();
        }
    });
    if (isWhole) saved_ = saved;
    return isWhole;
}

/// A list that stands says that the files do: they are on the disk before it, and it is before anything goes
/// on.
void BackupRun::writeDurableList() {
    session_.files.makeDurable(standing_);
    list_.write(session_, name_);
}

/// The first run has not come to its end as long as the disk refuses what could be read.
bool BackupRun::writeList() {
    if (isFirstRun_ && unwritten_ > 0) return false;
    return attempt([&] { writeDurableList(); }) && unwritten_ == 0;
}

} // namespace morvane
