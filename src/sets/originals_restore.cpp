#include "core/attempts.h"
#include "core/literals.h"
#include "core/ordered_work.h"
#include "core/safe_copy.h"
#include "sets/originals.h"

#include <algorithm>

namespace morvane {

namespace {

constexpr unsigned everyonesWriteBits = 0222;

} // namespace

OriginalsReport Originals::restore(const std::function<void(double)>& progress) {
    OriginalsReport report;
    FirstFailure failure;
    failure.attempt([&] { clearStrays(); });
    std::vector<KnownFile> known;
    for (const auto& [path, record] : list_.records().all().asKeyValueRange())
        known.push_back({spelling_.find(path), record});
    OrderedShares<FoundFile> found(known.size(), [&](std::size_t i) { return lookAt(known[i]); });
    double done = 0;
    for (const KnownFile& file : known) {
        const FoundFile ahead = found.next();
        failure.attempt([&] { restoreFile(file, ahead, report); });
        progress(++done / static_cast<double>(known.size()));
    }
    failure.attempt([&] { removeMadeFolders(); });
    if (!known.empty()) failure.attempt([&] { forgetRestored(); });
    report.failure = failure.error();
    return report;
}

/// What killed runs left beside their targets, where we put files of ours or those of a backup.
void Originals::clearStrays() {
    for (const QString& backedUp : {u"Scenery\\World\\Texture"_s, u"Scenery\\UTEurLC\\Texture"_s})
        clearStraysIn(backedUp);
    for (const QString& path : list_.records().all().keys())
        clearStraysIn(folderOf(path));
}

void Originals::clearStraysBeside(const FilePath& target) {
    clearStraysIn(folderOf(target.relativeTo(simulator_)));
}

void Originals::clearStraysIn(const QString& folder) {
    if (cleared_.contains(folder)) return;
    cleared_.insert(folder);
    for (const FilePath& stray : spelling_.filesEndingWith(folder, partialCopySuffix))
        if (files_.exists(stray)) files_.remove(stray); // another spelling may stand for the same folder
}

bool Originals::holds(const FilePath& file, const FileFingerprint& print) const {
    try {
        return fingerprintOf(files_, file) == print;
    } catch (const Error&) {
        return false;
    }
}

Originals::FoundFile Originals::lookAt(const KnownFile& file) const {
    FoundFile found;
    if (file.record.madeFolder) return found;
    found.failure = failureOf([&] {
        found.standing = seeFile(files_, file.place);
        const bool isKept = found.standing && file.record.isKept(found.standing->print);
        found.isOurs = found.standing && file.record.isOurs(found.standing->print);
        if (found.standing && !isKept && !found.isOurs)
            found.isOurs = isRemnantOfKnown(file.place, files_.read(file.place));
        if (file.record.kept.empty()) return;
        const OriginalFact& kept = file.record.kept.back();
        const bool stands = found.standing && found.standing->print == kept.print;
        found.isKeptSound = !stands && isSound(kept);
    });
    return found;
}

/// What was seen ahead counts only as long as the file is that one: another program may have written to it,
/// or this restore, where the drive takes two of the list's spellings for one file.
void Originals::restoreFile(const KnownFile& file, const FoundFile& ahead, OriginalsReport& report) {
    const auto& [place, record] = file;
    if (record.madeFolder) return; // when the files in it are gone
    const bool holds = !ahead.failure && isAsSeen(files_, place, ahead.standing);
    const FoundFile found = holds ? ahead : lookAt(file);
    if (found.failure) throw *found.failure;
    if (!record.kept.empty()) return restoreKept(file, found, report);
    const bool isLeft = record.added ? found.standing && !found.isOurs : found.isOurs;
    if (isLeft) { // of what lists of old call ours it is not known what stood there before
        report.left << place.relative();
        return;
    }
    if (found.isOurs) {
        takeReadOnlyMark(place);
        files_.remove(place);
        ++report.takenAway;
    }
    restored_.push_back(place);
}

void Originals::restoreKept(const KnownFile& file, const FoundFile& found, OriginalsReport& report) {
    const auto& [place, record] = file;
    const OriginalFact& kept = record.kept.back();
    const bool stands = found.standing && found.standing->print == kept.print;
    if (found.standing && !stands && !found.isOurs) {
        report.left << place.relative();
        return;
    }
    if (!stands && !found.isKeptSound) {
        report.damaged << place.relative();
        return;
    }
    if (!stands) ++report.putBack;
    giveBack(file, found);
}

void Originals::giveBack(const KnownFile& file, const FoundFile& found) {
    const auto& [place, record] = file;
    const OriginalFact& kept = record.kept.back();
    const unsigned mode = modeAfter(file, found);
    if (!found.standing || found.standing->print != kept.print) {
        takeReadOnlyMark(place);
        replaceFile(files_, folder_ / kept.where, place);
    }
    if (mode && files_.stamp(place).mode != mode) files_.setMode(place, mode);
    restored_.push_back(place);
}

/// Only when it is on the disk as it was before us: a cut of power may bring ours back until then.
void Originals::forgetRestored() {
    files_.makeDurable(restored_);
    for (const FilePath& place : std::exchange(restored_, {}))
        list_.records().apply(factOf(FactKind::gone, place));
    list_.write();
}

/// The mode that the pilot's file had: as it was when it was kept, or when we took its mark away. A mark that
/// it bears now came later, from the pilot, and stays. 0 when nothing is known.
unsigned Originals::modeAfter(const KnownFile& file, const FoundFile& found) {
    const unsigned now = found.standing ? found.standing->stamp.mode : 0;
    const unsigned known = file.record.takenMode ? file.record.takenMode->mode : file.record.kept.back().mode;
    const unsigned mode = known ? known : now;
    return found.standing && found.standing->stamp.isReadOnly() ? mode & ~everyonesWriteBits : mode;
}

void Originals::removeMadeFolders() {
    QStringList folders;
    for (const auto& [path, record] : list_.records().all().asKeyValueRange())
        if (record.madeFolder) folders << path;
    std::ranges::sort(folders, std::greater(), &QString::size);
    for (const QString& made : folders) { // the inner ones first
        const FilePath folder = spelling_.find(made);
        try {
            if (!files_.isLink(folder)) files_.removeFolder(folder); // a link came later, from the pilot
        } catch (const Error& error) {
            if (error.code() == ErrorCode::folderNotEmpty) continue; // something of the pilot's is in it
            if (error.code() != ErrorCode::pathNotFound) throw;
        }
        list_.add({factOf(FactKind::gone, folder)});
    }
}

} // namespace morvane
