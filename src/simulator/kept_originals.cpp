#include "simulator/kept_originals.h"

#include "core/error.h"

namespace morvane {

KeptOriginals::KeptOriginals(Session& session) : session_(session) {
    for (const KeptOriginal& original : Originals(session.files, session.FSPath, session.AppPath).list())
        kept_.insert(original.path.toCaseFolded(), original);
}

std::optional<FilePath> KeptOriginals::of(const FilePath& simulatorFile) const {
    const auto original = kept_.constFind(simulatorFile.relative().toCaseFolded());
    if (original == kept_.cend()) return std::nullopt;
    const FilePath place = session_.AppPath / u"Backup\\Originals" / original->path;
    try {
        const FileFingerprint print = fingerprintOf(session_.files, place);
        if (print == FileFingerprint{original->size, original->checksum}) return place;
    } catch (const Error&) { // as one that was never kept
    }
    return std::nullopt;
}

} // namespace morvane
