#include "simulator/originals_search.h"

#include "core/disk_spelling.h"
#include "core/error.h"
#include "core/literals.h"
#include "simulator/original_records.h"

#include <algorithm>

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

class OriginalsSearch {
public:
    OriginalsSearch(FileSystem& files, const FilePath& simulator, const FilePath& folder)
        : files_(files), simulator_(simulator.native()), folder_(folder), lists_(readAll(originalsListName)) {
    }

    OriginalsChoice choose() {
        if (const FoundList* list = findHeaded(lists_)) return {list->prefix, list->text.facts, true};
        for (const FoundList& list : lists_)
            if (!list.text.hasHead) return {list.prefix, list.text.facts};
        for (const FoundList& list : lists_)
            if (hasMovedHere(list)) return {list.prefix, list.text.facts, false, list.bytes};
        const std::vector<FoundList> left = readAll(leftListName);
        const FoundList* own = findHeaded(left);
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

    bool hasMovedHere(const FoundList& list) {
        if (files_.exists(FilePath(list.text.simulator) / u"fs9.exe")) return false;
        OriginalRecords records;
        for (const OriginalFact& fact : list.text.facts)
            records.apply(fact);
        int ours = 0, standing = 0, pilots = 0;
        DiskSpelling spelling(files_, simulator_);
        for (auto record = records.all().begin(); record != records.all().end(); ++record) {
            if (record->ours.empty()) continue;
            ++ours;
            const auto print = tryRead([&] { return fingerprintOf(files_, spelling.find(record.key())); });
            if (!print) continue;
            const bool isPilots =
                std::ranges::find(record->kept, *print, &OriginalFact::print) != record->kept.end();
            pilots += isPilots;
            standing += !isPilots && record->isOurs(*print);
        }
        const auto here = tryRead([&] { return files_.stamp(simulator_); });
        const bool isSameFolder = here && here->number == list.text.folderNumber;
        return (standing > 0 || isSameFolder) && 2 * (standing + pilots) >= ours;
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
