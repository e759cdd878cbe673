#include "sets/originals_search.h"

#include "core/disk_spelling.h"
#include "core/error.h"
#include "core/file_helpers.h"
#include "core/literals.h"
#include "sets/original_records.h"

#include <algorithm>
#include <cstdlib>

namespace morvane {

namespace {

struct FoundList {
    QString prefix;
    QByteArray bytes;
    OriginalsText text;
};

/// What the action gives; nothing when the file or folder is not there or cannot be read.
template <class Action>
auto tryRead(Action action) -> std::optional<decltype(action())> {
    try {
        return action();
    } catch (const Error&) {
        return std::nullopt;
    }
}

/// A drive may keep times less exactly than the one that a file was moved from.
bool isSameTime(std::int64_t time, std::int64_t other) {
    constexpr std::int64_t coarsest = 2'000'000'000;
    return std::abs(time - other) <= coarsest;
}

class OriginalsSearch {
public:
    OriginalsSearch(FileSystem& files, const FilePath& simulator, const FilePath& folder)
        : files_(files), simulator_(simulator.native()), folder_(folder), lists_(readAll(originalsListName)) {
    }

    OriginalsChoice choose() {
        if (const FoundList* list = findHeaded(lists_)) return {list->prefix, list->text.facts, true};
        for (const FoundList& list : lists_)
            if (!list.text.hasHead) return {list.prefix, list.text.facts};
        if (const FoundList* list = findMoved(lists_))
            return {list->prefix, list->text.facts, false, list->bytes};
        const std::vector<FoundList> left = readAll(leftListName);
        const FoundList* own = findHeaded(left);
        if (!own) own = findMoved(left);
        return {freePrefix(), own ? own->text.facts : std::vector<OriginalFact>()};
    }

private:
    /// Nothing for a list that is not there. One that cannot be read raises: without it our files would pass
    /// for the pilot's.
    std::optional<FoundList> readList(const QString& prefix, const QString& name) {
        const FilePath file = folder_ / (prefix + name);
        const auto bytes = files_.readIfThere(file);
        if (!bytes) return std::nullopt;
        return FoundList{prefix, *bytes, parseOriginals(*bytes, file)};
    }

    std::vector<FoundList> readAll(const QString& name) {
        QStringList prefixes{{}};
        for (const QString& folder : files_.listFolders(folder_))
            if (folder.startsWith(u"Simulator ")) prefixes << folder + u'\\';
        std::vector<FoundList> lists;
        for (const QString& prefix : prefixes)
            if (auto list = readList(prefix, name)) lists.push_back(std::move(*list));
        return lists;
    }

    const FoundList* findHeaded(const std::vector<FoundList>& lists) {
        const auto list = std::ranges::find_if(lists, [&](const FoundList& found) { return isHere(found); });
        return list == lists.end() ? nullptr : &*list;
    }

    /// Also by another way to the same folder: a link, other letters.
    bool isHere(const FoundList& list) {
        if (!list.text.hasHead) return false;
        if (list.text.simulator == simulator_.native()) return true;
        const auto there = tryRead([&] { return files_.stamp(FilePath(list.text.simulator)); });
        const auto here = tryRead([&] { return files_.stamp(simulator_); });
        return there && here && there->isSameFile(*here);
    }

    /// How far the files here are those that a list knows.
    struct Standing {
        int replaced = 0; ///< that a file of ours is known to have been put in their place
        int ours = 0, pilots = 0;
        int untouched = 0; ///< of ours, those last written when we wrote them
    };

    Standing standingOf(const FoundList& list) {
        OriginalRecords records;
        for (const OriginalFact& fact : list.text.facts)
            records.apply(fact);
        DiskSpelling spelling(files_, simulator_);
        Standing standing;
        for (auto record = records.all().begin(); record != records.all().end(); ++record) {
            // Where both have the same bytes they say nothing.
            if (record->ours.empty() || record->wasKept(record->ours.back().print)) continue;
            ++standing.replaced;
            const FilePath file = spelling.find(record.key());
            const auto print = tryRead([&] { return fingerprintOf(files_, file); });
            if (!print) continue;
            if (record->wasKept(*print)) {
                ++standing.pilots;
                continue;
            }
            const auto ours = std::ranges::find(record->ours, *print, &OriginalFact::print);
            if (ours == record->ours.end()) continue;
            ++standing.ours;
            standing.untouched += isSameTime(files_.stamp(file).time, ours->time);
        }
        return standing;
    }

    /// What speaks for a list being that of a simulator which stands here now, the stronger first: it is the
    /// folder that the list knew; so many files are ours. Nothing when it does not look so: in another folder
    /// the pilot's files say nothing, as two simulators may have the same, and some of our bytes may stand
    /// there by chance, but not with the very time of our writing.
    using Evidence = std::pair<bool, int>;

    std::optional<Evidence> evidenceOf(const FoundList& list) {
        constexpr int tooManyForChance = 20;
        if (holdsSimulator(files_, list.text.simulator)) return std::nullopt;
        const auto [replaced, ours, pilots, untouched] = standingOf(list);
        const auto here = tryRead([&] { return files_.stamp(simulator_); });
        const bool isFolder = here && here->number == list.text.folderNumber;
        const bool isKnown = isFolder && (ours + pilots > 0 || replaced == 0);
        const bool isLikely = untouched > 0 || (ours > tooManyForChance && 2 * ours > replaced);
        return isKnown || isLikely ? std::optional(Evidence{isFolder, ours}) : std::nullopt;
    }

    const FoundList* findMoved(const std::vector<FoundList>& lists) {
        const FoundList* best = nullptr;
        std::optional<Evidence> most;
        for (const FoundList& list : lists)
            if (const auto evidence = evidenceOf(list); evidence > most) { // none is less than any
                best = &list;
                most = evidence;
            }
        return best;
    }

    /// Also where the folder could not be listed: no list is ever written over another.
    QString freePrefix() {
        QString prefix;
        for (int number = 2; readList(prefix, originalsListName); ++number)
            prefix = u"Simulator %1\\"_s.arg(number);
        return prefix;
    }

    FileSystem& files_;
    FilePath simulator_, folder_;
    std::vector<FoundList> lists_;
};

} // namespace

OriginalsChoice findOriginals(FileSystem& files, const FilePath& simulator, const FilePath& folder) {
    return OriginalsSearch(files, simulator, folder).choose();
}

} // namespace morvane
