#include "core/attempts.h"
#include "sets/originals.h"

namespace morvane {

/// Ours come first: of a file that both kept the other's is the younger one, which a restore brings back.
void Originals::adopt(const FilePath& install) {
    const FilePath folder = install / u"Backup\\Originals";
    OriginalsChoice other;
    if (!attempt([&] { other = findOriginals(files_, simulator_, folder); })) return;
    std::vector<OriginalFact> facts;
    for (OriginalFact fact : other.facts) {
        if (fact.kind == FactKind::kept) {
            if (list_.records().of(fact.path).wasKept(fact.print)) continue;
            const auto contents = files_.readIfThere(folder / fact.where);
            if (!contents || fingerprintOf(*contents) != fact.print) continue;
            makeCopyFolder(fact.path);
            fact.where = keepCopy(fact.path, *contents);
        }
        facts.push_back(fact);
    }
    addKept(facts);
}

} // namespace morvane
