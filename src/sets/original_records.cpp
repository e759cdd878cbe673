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

std::vector<OriginalFact> OriginalRecord::facts() const {
    std::vector<OriginalFact> facts = kept;
    facts.insert(facts.end(), ours.begin(), ours.end());
    for (const auto& fact : {madeFolder, added, takenMode})
        if (fact) facts.push_back(*fact);
    return facts;
}

void OriginalRecords::apply(const OriginalFact& fact) {
    OriginalRecord& record = records_[fact.path];
    switch (fact.kind) {
    case FactKind::kept:
        record.kept.push_back(fact);
        record.takenMode.reset(); // the mode is noted with the file
        break;
    case FactKind::ours:
        std::erase_if(record.ours, [&](const OriginalFact& other) { return other.print == fact.print; });
        record.ours.push_back(fact);
        break;
    case FactKind::added:
        record.added = fact;
        break;
    case FactKind::mode:
        record.takenMode = fact;
        break;
    case FactKind::folder:
        record.madeFolder = fact;
        break;
    case FactKind::gone:
        records_.remove(fact.path);
        break;
    }
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
    for (auto* fact : {&renamed.added, &renamed.takenMode, &renamed.madeFolder})
        if (*fact) setPath(**fact);
    records_.insert(to, renamed);
}

} // namespace morvane
