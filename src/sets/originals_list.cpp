#include "sets/originals_list.h"

#include "core/safe_copy.h"

#include <algorithm>

namespace morvane {

OriginalsList::OriginalsList(FileSystem& files, const FilePath& simulator, const FilePath& folder)
    : files_(files), simulator_(simulator), folder_(folder) {
    OriginalsChoice choice = findOriginals(files, simulator, folder);
    prefix_ = choice.prefix;
    isOnDisk_ = choice.isOnDisk;
    left_ = choice.left;
    for (OriginalFact& fact : choice.facts)
        records_.apply(std::move(fact));
}

void OriginalsList::add(const std::vector<OriginalFact>& facts) {
    if (facts.empty()) return;
    if (isOnDisk_) append(facts); // on the disk first: what is only in memory must not count
    for (const OriginalFact& fact : facts)
        records_.apply(fact);
    if (isOnDisk_) return;
    write();
    outlastACut(facts);
}

/// What stood in a place before us is told nowhere else, so it is on the disk before any file is replaced.
/// What we put there can be told by its contents.
void OriginalsList::outlastACut(const std::vector<OriginalFact>& facts) {
    const auto isOfBefore = [](const OriginalFact& fact) {
        return fact.kind == FactKind::kept || fact.kind == FactKind::added || fact.kind == FactKind::folder;
    };
    if (std::ranges::any_of(facts, isOfBefore)) files_.makeDurable({file(originalsListName)});
}

void OriginalsList::append(const std::vector<OriginalFact>& facts) {
    QByteArray lines = tornLineEnd;
    for (const OriginalFact& fact : facts)
        addFactLine(lines, fact);
    files_.append(file(originalsListName), lines);
    outlastACut(facts);
}

void OriginalsList::rename(const QString& from, const QString& to) {
    records_.rename(from, to);
    isOnDisk_ = false;
}

void OriginalsList::write() {
    const FilePath list = file(originalsListName);
    files_.makeFolder(list.parent());
    if (!left_.isEmpty()) writeDurably(files_, file(leftListName), left_);
    left_.clear();
    QByteArray text = headLine(simulator_.native(), files_.stamp(simulator_).number);
    qsizetype size = text.size();
    records_.tellFacts([&](const OriginalFact& fact) { size += usualLength(fact); });
    text.reserve(size);
    records_.tellFacts([&](const OriginalFact& fact) { addFactLine(text, fact); });
    writeDurably(files_, list, text);
    isOnDisk_ = true;
}

} // namespace morvane
