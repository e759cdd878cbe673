#include "core/attempts.h"
#include "core/ordered_work.h"
#include "core/safe_copy.h"
#include "sets/originals.h"

namespace morvane {

OriginalsReport Originals::undo(const std::vector<OriginalFact>& stood, const FilePath& saved,
                                const std::function<void(double)>& progress) {
    OriginalsReport report;
    std::vector<StoodPlace> places;
    places.reserve(stood.size());
    for (const OriginalFact& fact : stood)
        places.push_back({spelling_.findExactly(fact.path), fact});
    OrderedShares<FoundPlace> found(places.size(), [&](std::size_t i) { return lookAt(places[i], saved); });
    FirstFailure failure;
    failure.attempt([&] { clearStrays(); }); // while it is known where
    std::vector<OriginalFact> undone;
    double done = 0;
    for (const StoodPlace& place : places) {
        const FoundPlace ahead = found.next();
        failure.attempt([&] {
            const bool isUpToDate = !ahead.failure && isAsSeen(files_, place.place, ahead.standing);
            if (undoPlace(place, isUpToDate ? ahead : lookAt(place, saved), report))
                undone.push_back(place.stood);
        });
        progress(++done / static_cast<double>(places.size()));
    }
    failure.attempt([&] { settleUndone(undone); });
    report.failure = failure.error();
    return report;
}

Originals::FoundPlace Originals::lookAt(const StoodPlace& place, const FilePath& saved) const {
    FoundPlace found;
    found.failure = failureOf([&] {
        const OriginalFact& stood = place.stood;
        found.standing = seeFile(files_, place.place);
        if (found.stands(stood) || stood.kind == FactKind::added) return;
        const FilePath& from = stood.kind == FactKind::kept ? folder_ : appPath_;
        for (const FilePath& source : {from / stood.where, saved / stood.path})
            if (!found.source && holds(source, stood.print)) found.source = source;
    });
    return found;
}

/// False when the place was left as it is. Only ours is replaced or taken away, so nothing has to be kept.
bool Originals::undoPlace(const StoodPlace& place, const FoundPlace& found, OriginalsReport& report) {
    if (found.failure) throw *found.failure;
    const OriginalFact& stood = place.stood;
    if (found.stands(stood)) {
        if (FileStamp{.mode = stood.mode}.isReadOnly()) giveModeBack(place); // the step took the mark
        return true;
    }
    const QString path = place.place.relative();
    if (found.standing && !list_.records().of(path).isOurs(found.standing->print)) {
        report.left << path;
        return false;
    }
    if (stood.kind == FactKind::added) {
        takeReadOnlyMark(place.place);
        files_.remove(place.place);
        ++report.takenAway;
        return true;
    }
    if (!found.source) {
        report.damaged << path;
        return false;
    }
    bringBack(place, *found.source);
    ++report.putBack;
    return true;
}

/// A file of ours is known as ours before it stands there, as in an install.
void Originals::bringBack(const StoodPlace& stoodPlace, const FilePath& source) {
    const auto& [place, stood] = stoodPlace;
    OriginalFact ours = stood;
    ours.mode = 0;
    ours.time = 0;
    ours.number = 0;
    if (stood.kind == FactKind::ours) list_.add({ours});
    takeReadOnlyMark(place);
    replaceFile(files_, source, place);
    giveModeBack(stoodPlace);
    if (stood.kind != FactKind::ours) return;
    const FileStamp stamp = files_.stamp(place);
    ours.time = stamp.time;
    ours.number = stamp.number;
    placed_.insert(place.relative(), ours);
}

void Originals::giveModeBack(const StoodPlace& stoodPlace) {
    const auto& [place, stood] = stoodPlace;
    if (stood.mode && files_.stamp(place).mode != stood.mode) files_.setMode(place, stood.mode);
}

/// What is known of the places is as before the step: no fact speaks of its copies any more. Only when they
/// are so on the disk: a cut of power may bring the copies back until then.
void Originals::settleUndone(const std::vector<OriginalFact>& undone) {
    std::vector<FilePath> places;
    places.reserve(undone.size());
    for (const OriginalFact& stood : undone)
        places.push_back(spelling_.findExactly(stood.path));
    files_.makeDurable(places);
    settlePlaced();
    OriginalRecords& records = list_.records();
    for (const OriginalFact& stood : undone) {
        const QString path = spelling_.findExactly(stood.path).relative();
        if (!records.contains(path)) continue;
        OriginalRecord& record = records[path];
        std::erase_if(record.ours, [&](const OriginalFact& ours) {
            return stood.kind != FactKind::ours || ours.print != stood.print;
        });
        if (record.ours.empty() && record.kept.empty()) records.apply({.kind = FactKind::gone, .path = path});
    }
    list_.write();
}

} // namespace morvane
