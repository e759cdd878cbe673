#include "sets/originals.h"

#include "core/attempts.h"
#include "core/literals.h"
#include "core/ordered_work.h"
#include "core/safe_copy.h"

#include <algorithm>
#include <utility>

namespace morvane {

namespace {

/// "Texture\a.bmp", then "Texture\a (2).bmp" and so on.
QString numbered(const QString& path, int number) {
    if (number == 1) return path;
    const qsizetype dot = path.lastIndexOf(u'.');
    const qsizetype end = dot > path.lastIndexOf(u'\\') ? dot : path.size();
    return path.left(end) + u" (%1)"_s.arg(number) + path.mid(end);
}

} // namespace

Originals::Originals(FileSystem& files, const FilePath& simulator, const FilePath& appPath,
                     const QDate& today)
    : files_(files), simulator_(simulator), appPath_(appPath), folder_(appPath / u"Backup\\Originals"),
      today_(today), list_(files, simulator, folder_), spelling_(files, simulator) {
    respell();
}

/// Files may have been given other letters since they were noted; lists of old noted whatever spelling our
/// own files had.
void Originals::respell() {
    for (const QString& path : list_.records().all().keys()) {
        const QString onDisk = spelling_.find(path).relative();
        if (onDisk != path && !list_.records().contains(onDisk)) list_.rename(path, onDisk);
    }
}

FilePath Originals::find(const FilePath& target) {
    const QString path = target.relativeTo(simulator_);
    if (!target.isResolved()) return spelling_.find(path);
    const qsizetype end = path.lastIndexOf(u'\\') + 1;
    return spelling_.findExactly(path.left(end) + FilePath(target.native()).fileName());
}

OriginalFact Originals::factOf(FactKind kind, const QString& path) const {
    OriginalFact fact{kind, path};
    fact.day = today_;
    return fact;
}

std::vector<FilePath> Originals::prepare(const std::vector<FileCopy>& copies,
                                         const std::function<void()>& pump) {
    return prepareAll(copies, pump, true);
}

void Originals::keepAll(const std::vector<FileCopy>& copies) {
    prepareAll(
        copies, [] {}, false);
}

std::vector<FilePath> Originals::prepareAll(const std::vector<FileCopy>& copies,
                                            const std::function<void()>& pump, bool areOurs) {
    std::vector<FilePath> places;
    places.reserve(copies.size());
    for (const FileCopy& copy : copies)
        places.push_back(find(copy.target));
    // The records stay as they are until all have been looked at.
    const std::vector<bool> mayKeep = mayKeepAhead(places);
    OrderedShares<SeenCopy> seen(copies.size(),
                                 [&](std::size_t i) { return seeCopy(copies[i], places[i], mayKeep[i]); });
    std::vector<OriginalFact> facts;
    for (std::size_t i = 0; i < copies.size(); ++i) {
        prepareCopy(copies[i], places[i], seen.next(), areOurs, facts);
        pump();
    }
    addKept(facts);
    return places;
}

/// Of several copies to one place the first keeps what stands there.
std::vector<bool> Originals::mayKeepAhead(const std::vector<FilePath>& places) {
    std::vector<bool> mayKeep;
    QSet<QString> earlier = looked_;
    for (const FilePath& place : places) {
        mayKeep.push_back(!earlier.contains(place.relative()));
        earlier.insert(place.relative());
        makeCopyFolder(place.relative());
    }
    return mayKeep;
}

/// What was kept is on the disk before a line says so, and the line before the first file is replaced: a cut
/// of power, too, costs the pilot nothing. A set can be copied again.
void Originals::addKept(const std::vector<OriginalFact>& facts) {
    std::vector<FilePath> kept;
    for (const OriginalFact& fact : facts)
        if (fact.kind == FactKind::kept) kept.push_back(copyPlace(fact.where));
    if (!kept.empty()) files_.makeDurable(kept);
    list_.add(facts);
}

Originals::SeenCopy Originals::seeCopy(const FileCopy& copy, const FilePath& place, bool mayKeep) const {
    SeenCopy seen;
    seen.sourceFailure = failureOf([&] { seen.source = fingerprintOf(files_, copy.source); });
    if (seen.sourceFailure) return seen;
    seen.targetFailure = failureOf([&] {
        Standing& target = seen.target = see(copy, place);
        // The copy itself: a cut of power took the fact about it.
        if (target.isRemnant && target.file->print == seen.source) target.unknown.reset();
        if (!target.unknown || target.isRemnant || !mayKeep) return;
        target.kept = keep(place, *target.file, *target.unknown);
        target.unknown.reset();
    });
    return seen;
}

Originals::Standing Originals::see(const FileCopy& copy, const FilePath& place) const {
    const auto stamp = files_.stampIfThere(place);
    auto contents = stamp ? files_.readIfThere(place) : std::nullopt;
    if (!contents) return {};
    const SeenFile seen{fingerprintOf(*contents), *stamp};
    if (isOursOrKept(place, seen.print)) return {seen};
    const bool isRemnant = isRemnantOfKnown(place, *contents, copy.source);
    return {seen, std::move(contents), isRemnant};
}

/// Of one of ours, of the one that was about to come, or of the kept one on its way back. A pilot's file that
/// looks alike holds nothing that those do not.
bool Originals::isRemnantOfKnown(const FilePath& place, const QByteArray& contents,
                                 const std::optional<FilePath>& source) const {
    const OriginalRecord& known = list_.records().of(place.relative());
    if (!list_.records().contains(place.relative()) || known.wasKept(fingerprintOf(contents))) return false;
    const auto isOf = [&](const auto& file) {
        std::optional<QByteArray> whole; // a set may be gone
        attempt([&] { whole = files_.readIfThere(file()); });
        return whole && isRemnant(contents, *whole);
    };
    const bool isZero = contents.count('\0') == contents.size();
    const auto isOfOurs = [&](const OriginalFact& ours) {
        return (isZero && contents.size() <= ours.print.size) || isOf([&] { return appPath_ / ours.where; });
    };
    return (source && isOf([&] { return *source; })) || std::ranges::any_of(known.ours, isOfOurs) ||
           (!known.kept.empty() && isOf([&] { return folder_ / known.kept.back().where; }));
}

bool Originals::isOursOrKept(const FilePath& place, const FileFingerprint& print) const {
    const OriginalRecord& known = list_.records().of(place.relative());
    return known.isOurs(print) || known.isKept(print);
}

void Originals::prepareCopy(const FileCopy& copy, const FilePath& place, const SeenCopy& seen, bool isOurs,
                            std::vector<OriginalFact>& facts) {
    const QString path = list_.records().oneText(place.relative());
    if (seen.sourceFailure) {
        failures_.insert(copy.source.text(), *seen.sourceFailure);
        return;
    }
    std::optional<Error> failure = seen.targetFailure;
    if (!failure) failure = failureOf([&] { note(place, path, seen.target, isOurs, facts); });
    if (failure) {
        failures_.insert(path, *failure);
        return;
    }
    if (!isOurs) return;
    announced_.insert(copy.source, seen.source);
    if (seen.target.file && seen.target.file->print == seen.source) standing_.insert(path, *seen.target.file);
    if (list_.records().of(path).isOurs(seen.source)) return;
    OriginalFact ours = factOf(FactKind::ours, path);
    ours.print = seen.source;
    ours.where = copy.source.relative();
    facts.push_back(ours);
}

/// Before the announcement is noted, not after: it would pass the pilot's file for ours where both have the
/// same bytes.
void Originals::note(const FilePath& place, const QString& path, const Standing& standing, bool isForOurs,
                     std::vector<OriginalFact>& facts) {
    if (looked_.contains(path)) return;
    if (standing.unknown) makeCopyFolder(path);
    if (standing.kept)
        facts.push_back(*standing.kept);
    else if (standing.unknown && standing.isRemnant)
        keepCopy(path, *standing.unknown); // without a fact: no restore brings it back
    else if (standing.unknown)
        facts.push_back(keep(place, *standing.file, *standing.unknown));
    else if (!standing.file && isForOurs && !list_.records().contains(path))
        facts.push_back(factOf(FactKind::added, path));
    if (isForOurs) stood_.insert(path, stoodFact(path, standing, facts));
    looked_.insert(path);
}

/// `facts`: its keeping is the last of them, where the file was not known before. In the place of what a cut
/// of power left comes what was to stand there.
OriginalFact Originals::stoodFact(const QString& path, const Standing& standing,
                                  const std::vector<OriginalFact>& facts) const {
    if (!standing.file) return factOf(FactKind::added, path);
    const OriginalRecord& record = list_.records().of(path);
    const auto ours = std::ranges::find(record.ours, standing.file->print, &OriginalFact::print);
    const bool isKeptNow = standing.kept || (standing.unknown && !standing.isRemnant);
    OriginalFact fact = isKeptNow                   ? facts.back()
                        : ours != record.ours.end() ? *ours
                        : record.kept.empty()       ? record.ours.back()
                                                    : record.kept.back();
    fact.mode = standing.file->stamp.mode;
    return fact;
}

OriginalFact Originals::keep(const FilePath& place, const SeenFile& file, const QByteArray& contents) const {
    OriginalFact kept = factOf(FactKind::kept, place);
    kept.print = file.print;
    kept.time = file.stamp.time;
    kept.number = file.stamp.number;
    kept.mode = file.stamp.mode;
    kept.where = keepCopy(place.relative(), contents);
    return kept;
}

/// A kept file is never written over: the next one of its path lies beside it, numbered. One of the same
/// contents, which a kill or a restore left there without a fact, serves again.
QString Originals::keepCopy(const QString& path, const QByteArray& contents) const {
    for (int number = 1;; ++number) {
        const QString where = list_.prefix() + numbered(path, number);
        const FilePath copy = copyPlace(where);
        if (files_.writeNew(copy, contents) || files_.readIfThere(copy) == contents) return where;
    }
}

/// Folders are made and looked up once for their thousands of files.
void Originals::makeCopyFolder(const QString& path) {
    const QString folder = folderOf(list_.prefix() + path);
    if (copyFolders_.contains(folder)) return;
    files_.makeFolder(folder_ / folder);
    copyFolders_.insert(folder, (folder_ / folder).resolved());
}

FilePath Originals::copyPlace(const QString& where) const {
    return copyFolders_.value(folderOf(where)).exactChild(where.mid(where.lastIndexOf(u'\\') + 1));
}

FilePath Originals::place(const FileCopy& copy, const std::optional<SeenFile>& standing) {
    const FilePath place = find(copy.target);
    const QString path = place.relative();
    if (!failures_.isEmpty())
        for (const QString& part : {copy.source.text(), path})
            if (const auto failure = failures_.constFind(part); failure != failures_.cend()) throw *failure;
    if (looked_.contains(path)) return place;
    std::vector<OriginalFact> facts;
    const bool isKnown =
        standing && isOursOrKept(place, standing->print) && isAsSeen(files_, place, standing);
    note(place, path, isKnown ? Standing{standing} : see(copy, place), false, facts);
    addKept(facts);
    return place;
}

bool Originals::stands(const FileCopy& copy, const FilePath& place) const {
    const auto seen = standing_.constFind(place.relative());
    if (seen == standing_.cend() || announced_.value(copy.source) != seen->print) return false;
    const bool isReplaced = files_.isLink(place) || seen->stamp.isReadOnly();
    return !isReplaced && isAsSeen(files_, place, *seen);
}

void Originals::notePlaced(const FileCopy& copy, const FilePath& place) {
    const auto print = announced_.constFind(copy.source);
    if (print == announced_.cend()) {
        pilots_.insert(place.relative());
        return;
    }
    const FileStamp stamp = files_.stamp(place);
    OriginalFact ours = factOf(FactKind::ours, list_.records().oneText(place.relative()));
    ours.print = *print;
    ours.where = copy.source.relative();
    ours.time = stamp.time;
    ours.number = stamp.number;
    placed_.insert(ours.path, ours);
}

void Originals::settle() {
    if (announced_.isEmpty() && pilots_.isEmpty()) return;
    settlePlaced();
    // Where the pilot's own was put, nothing of ours is any more.
    for (const QString& path : pilots_)
        if (list_.records().contains(path)) list_.records()[path].ours.clear();
    list_.write();
}

/// A file that was written just now keeps no number: its time may be that of a later write, too, so only its
/// bytes can tell.
void Originals::settlePlaced() {
    const std::int64_t now = momentNow();
    for (OriginalFact last : std::exchange(placed_, {})) {
        if (!showsWritesFrom(now, last.time)) last.number = 0;
        OriginalRecord& record = list_.records()[last.path];
        const FileFingerprint stood = stood_.value(last.path).print;
        const bool isReplaced = record.isOurs(stood) && !(stood == last.print);
        list_.records().apply(last);
        if (isReplaced)
            std::erase_if(record.ours, [&](const OriginalFact& fact) {
                return !(fact.print == last.print || fact.print == stood);
            });
    }
}

bool Originals::takeReadOnlyMark(const FilePath& place) {
    if (files_.isLink(place) || !files_.isReadOnly(place)) return false;
    OriginalFact mark = factOf(FactKind::mode, place);
    mark.mode = files_.stamp(place).mode;
    list_.add({mark});
    files_.setReadOnly(place, false);
    return true;
}

void Originals::makeFolder(const FilePath& folder) {
    std::vector<OriginalFact> made;
    for (FilePath above = spelling_.findFolder(folder.relativeTo(simulator_));
         !above.relative().isEmpty() && !files_.isFolder(above); above = above.parent())
        made.push_back(factOf(FactKind::folder, above));
    list_.add(made);
    files_.makeFolder(folder);
}

std::vector<KeptOriginal> Originals::list() const {
    std::vector<KeptOriginal> kept;
    for (const OriginalRecord& record : list_.records().all()) {
        int number = 0;
        for (const OriginalFact& fact : record.kept)
            kept.push_back({fact.path, fact.print.size, fact.print.checksum.text(), ++number, fact.day,
                            fact.where, fact.mode});
    }
    return kept;
}

const OriginalRecord& Originals::recordOf(const FilePath& target) {
    return list_.records().of(find(target).relative());
}

bool Originals::isOurs(const FilePath& target) {
    const FilePath place = find(target);
    const auto contents = files_.readIfThere(place);
    return contents && (list_.records().of(place.relative()).isOurs(fingerprintOf(*contents)) ||
                        isRemnantOfKnown(place, *contents));
}

std::optional<FilePath> Originals::keptFile(const FilePath& target) {
    const OriginalRecord& record = recordOf(target);
    if (record.kept.empty() || !isOurs(target) || !isSound(record.kept.back())) return std::nullopt;
    return folder_ / record.kept.back().where;
}

} // namespace morvane
