#include "core/attempts.h"
#include "core/literals.h"
#include "core/safe_copy.h"
#include "sets/originals.h"

#include <algorithm>

namespace morvane {

namespace {

constexpr unsigned everyonesWriteBits = 0222;

} // namespace

OriginalsReport Originals::restore(const std::function<void(double)>& progress) {
    OriginalsReport report;
    const QStringList paths = list_.records().all().keys();
    FirstFailure failure;
    failure.attempt([&] { clearStrays(); });
    double done = 0;
    for (const QString& path : paths) {
        failure.attempt([&] { restoreFile(path, report); });
        progress(++done / static_cast<double>(paths.size()));
    }
    failure.attempt([&] { removeMadeFolders(); });
    if (!paths.isEmpty()) failure.attempt([&] { list_.write(); });
    report.failure = failure.error();
    return report;
}

/// What killed runs left beside their targets, where we put files of ours or those of a backup.
void Originals::clearStrays() {
    QMap<QString, FilePath> folders;
    const auto add = [&](const FilePath& folder) { folders.insert(folder.relative(), folder); };
    for (const QString& backedUp : {u"Scenery\\World\\Texture"_s, u"Scenery\\UTEurLC\\Texture"_s})
        add(spelling_.findFolder(backedUp));
    for (const QString& path : list_.records().all().keys())
        add(spelling_.find(path).parent());
    for (const FilePath& folder : folders)
        removePartialCopies(files_, folder);
}

bool Originals::isSound(const OriginalFact& kept) {
    try {
        return fingerprintOf(files_, folder_ / kept.where) == kept.print;
    } catch (const Error&) {
        return false;
    }
}

void Originals::restoreFile(const QString& path, OriginalsReport& report) {
    const OriginalRecord record = list_.records().of(path);
    if (record.madeFolder) return; // when the files in it are gone
    const FilePath place = spelling_.find(path);
    if (!record.kept.empty()) return restoreKept(place, record, report);
    const auto contents = files_.readIfThere(place);
    const bool isOurs = contents && record.isOurs(fingerprintOf(*contents));
    const bool isLeft = record.added ? contents && !isOurs : isOurs;
    if (isLeft) { // of what lists of old call ours it is not known what stood there before
        report.left << path;
        return;
    }
    if (isOurs) {
        takeReadOnlyMark(place);
        files_.remove(place);
        ++report.takenAway;
    }
    list_.add({factOf(FactKind::gone, place)});
}

void Originals::restoreKept(const FilePath& place, const OriginalRecord& record, OriginalsReport& report) {
    const OriginalFact& kept = record.kept.back();
    const auto contents = files_.readIfThere(place);
    const std::optional<FileFingerprint> print =
        contents ? std::optional(fingerprintOf(*contents)) : std::nullopt;
    const bool stands = print == kept.print;
    if (print && !stands && !record.isOurs(*print)) {
        report.left << place.relative();
        return;
    }
    if (!stands && !isSound(kept)) {
        report.damaged << place.relative();
        return;
    }
    const unsigned mode = modeAfter(place, record, contents.has_value());
    if (!stands) {
        takeReadOnlyMark(place);
        replaceFile(files_, folder_ / kept.where, place);
        ++report.putBack;
    }
    if (mode && files_.stamp(place).mode != mode) files_.setMode(place, mode);
    list_.add({factOf(FactKind::gone, place)});
}

/// The mode that the pilot's file had: as it was when it was kept, or when we took its mark away. A mark that
/// it bears now came later, from the pilot, and stays. 0 when nothing is known.
unsigned Originals::modeAfter(const FilePath& place, const OriginalRecord& record, bool isThere) {
    const unsigned now = isThere ? files_.stamp(place).mode : 0;
    const unsigned known = record.takenMode ? record.takenMode->mode : record.kept.back().mode;
    const unsigned mode = known ? known : now;
    return isThere && files_.isReadOnly(place) ? mode & ~everyonesWriteBits : mode;
}

void Originals::removeMadeFolders() {
    std::vector<OriginalFact> folders;
    for (const OriginalRecord& record : list_.records().all())
        if (record.madeFolder) folders.push_back(*record.madeFolder);
    std::ranges::sort(folders, std::greater(), [](const OriginalFact& fact) { return fact.path.size(); });
    for (const OriginalFact& made : folders) { // the inner ones first
        const FilePath folder = spelling_.find(made.path);
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
