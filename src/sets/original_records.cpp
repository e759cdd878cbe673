#include "sets/original_records.h"

#include <algorithm>

namespace morvane {

bool OriginalRecord::isOurs(const FileFingerprint& print) const {
    return std::ranges::find(ours, print, &OriginalFact::print) != ours.end();
}

bool OriginalRecord::isKept(const FileFingerprint& print) const {
    return !kept.empty() && kept.back().print == print;
}

bool OriginalRecord::wasKept(const FileFingerprint& print) const {
    return std::ranges::find(kept, print, &OriginalFact::print) != kept.end();
}

void OriginalRecords::apply(OriginalFact fact) {
    auto found = records_.find(fact.path);
    if (found == records_.end()) found = records_.insert(fact.path, {});
    fact.path = found.key();
    OriginalRecord& record = *found;
    const OriginalRecord::Mark mark{fact.mode, fact.day};
    switch (fact.kind) {
    case FactKind::kept:
        record.kept.push_back(std::move(fact));
        record.takenMode.reset(); // the mode is noted with the file
        break;
    case FactKind::ours:
        std::erase_if(record.ours, [&](const OriginalFact& other) { return other.print == fact.print; });
        record.ours.push_back(std::move(fact));
        break;
    case FactKind::added:
        record.added = mark;
        break;
    case FactKind::mode:
        record.takenMode = mark;
        break;
    case FactKind::folder:
        record.madeFolder = mark;
        break;
    case FactKind::gone:
        records_.erase(found);
        break;
    }
}

void OriginalRecords::tellFacts(const std::function<void(const OriginalFact&)>& tell) const {
    for (auto record = records_.begin(); record != records_.end(); ++record) {
        for (const auto* facts : {&record->kept, &record->ours})
            std::ranges::for_each(*facts, tell);
        const auto tellMark = [&](FactKind kind, const std::optional<OriginalRecord::Mark>& mark) {
            if (mark) tell({.kind = kind, .path = record.key(), .mode = mark->mode, .day = mark->day});
        };
        tellMark(FactKind::folder, record->madeFolder);
        tellMark(FactKind::added, record->added);
        tellMark(FactKind::mode, record->takenMode);
    }
}

QString OriginalRecords::oneText(const QString& path) const {
    const auto found = records_.find(path);
    return found == records_.end() ? path : found.key();
}

const OriginalRecord& OriginalRecords::of(const QString& path) const {
    static const OriginalRecord nothing;
    const auto found = records_.find(path);
    return found == records_.end() ? nothing : *found;
}

void OriginalRecords::rename(const QString& from, const QString& to) {
    OriginalRecord renamed = records_.take(from);
    const auto setPath = [&](OriginalFact& fact) { fact.path = to; };
    std::ranges::for_each(renamed.kept, setPath);
    std::ranges::for_each(renamed.ours, setPath);
    records_.insert(to, renamed);
}

} // namespace morvane
