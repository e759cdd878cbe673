#include "core/attempts.h"
#include "core/ordered_work.h"
#include "sets/originals.h"

#include <algorithm>

namespace morvane {

std::vector<CheckedPlace> Originals::check(CheckDepth depth, const std::function<void(double)>& progress) {
    std::vector<KnownFile> known;
    for (const auto& [path, record] : list_.records().all().asKeyValueRange())
        if (!record.ours.empty() || !record.kept.empty()) known.push_back({spelling_.find(path), record});
    OrderedShares<CheckedPlace> checked(known.size(), [&](std::size_t i) { return check(known[i], depth); });
    std::vector<CheckedPlace> places;
    while (places.size() < known.size()) {
        places.push_back(checked.next());
        progress(static_cast<double>(places.size()) / static_cast<double>(known.size()));
    }
    return places;
}

CheckedPlace Originals::check(const KnownFile& file, CheckDepth depth) const {
    const OriginalRecord& record = file.record;
    CheckedPlace checked{.path = file.place.relative(), .isKept = !record.kept.empty()};
    if (checked.isKept) checked.isKeptSound = isKeptSound(record.kept.back(), depth);
    if (!record.ours.empty()) checked.where = record.ours.back().where;
    const std::optional<FileStamp> stamp = files_.stampIfThere(file.place);
    if (stamp) checked.time = stamp->time;
    checked.state = stamp ? stateOf(file, *stamp, depth) : stateOfNothing(record);
    // Without one of ours the place is the pilot's, whatever he does there.
    if (record.ours.empty()) checked.state = PlaceState::pilots;
    return checked;
}

/// Of a copy that was only announced nobody noted a time.
PlaceState Originals::stateOfNothing(const OriginalRecord& record) {
    const bool wasPut =
        std::ranges::any_of(record.ours, [](const OriginalFact& ours) { return ours.time != 0; });
    return record.kept.empty() && !wasPut ? PlaceState::empty : PlaceState::missing;
}

/// One that cannot be read is not what we left either.
PlaceState Originals::stateOf(const KnownFile& file, const FileStamp& stamp, CheckDepth depth) const {
    const OriginalRecord& record = file.record;
    if (record.ours.empty()) return PlaceState::pilots;
    const OriginalFact& last = record.ours.back();
    if (depth == CheckDepth::changedFiles && isUntouched(last, stamp)) return PlaceState::ours;
    FileFingerprint print;
    if (!attempt([&] { print = fingerprintOf(files_, file.place); })) return PlaceState::changed;
    if (print == last.print) return PlaceState::ours;
    if (record.isOurs(print)) return PlaceState::earlier;
    return record.isKept(print) ? PlaceState::pilots : PlaceState::changed;
}

/// The number is noted only where the time would tell of every later write, see settlePlaced.
bool Originals::isUntouched(const OriginalFact& ours, const FileStamp& stamp) {
    return ours.number && stamp.number == ours.number && stamp.time == ours.time &&
           stamp.size == ours.print.size;
}

bool Originals::isKeptSound(const OriginalFact& kept, CheckDepth depth) const {
    if (depth == CheckDepth::everyFile) return isSound(kept);
    const auto stamp = files_.stampIfThere(folder_ / kept.where);
    return stamp && stamp->size == kept.print.size;
}

std::optional<Originals::ReadFile> Originals::readUnknown(const FilePath& place) const {
    const auto stamp = files_.stampIfThere(place);
    const auto contents = stamp ? files_.readIfThere(place) : std::nullopt;
    if (!contents) return std::nullopt;
    const FileFingerprint print = fingerprintOf(*contents);
    return isOursOrKept(place, print) ? std::nullopt : std::optional(ReadFile{{print, *stamp}, *contents});
}

bool Originals::takeAsPilots(const QString& path) {
    const FilePath place = spelling_.findExactly(path);
    const auto unknown = readUnknown(place);
    if (!unknown) return false;
    makeCopyFolder(path);
    addKept({keep(place, unknown->seen, unknown->contents)});
    return true;
}

void Originals::layAside(const FilePath& target) {
    const FilePath place = find(target);
    const QString path = place.relative();
    makeCopyFolder(path);
    if (const auto unknown = readUnknown(place))
        files_.makeDurable({copyPlace(keepCopy(path, unknown->contents))});
    looked_.insert(path);
}

bool Originals::putPilotsBack(const QString& path) {
    const FilePath place = spelling_.findExactly(path);
    const OriginalRecord record = list_.records().of(path);
    if (record.kept.empty() || !isSound(record.kept.back())) return false;
    layAside(place);
    giveBack({place, record}, {.standing = seeFile(files_, place)});
    forgetRestored();
    return true;
}

} // namespace morvane
