#pragma once

#include "core/file_fingerprint.h"
#include "core/job.h"
#include "core/ordered_work.h"
#include "sets/originals.h"

#include <optional>

namespace morvane {

struct CheckedFile {
    FileFingerprint print;         ///< of the source
    std::optional<SeenFile> there; ///< the target, if there is one

    /// It has the same contents already.
    bool stands() const { return there && there->print == print; }
};
/// Reads both. Raises when one of them cannot be read; a missing target is no failure. Any thread may call
/// it.
CheckedFile checkCopy(const FileCopy& copy);

/// The same for a list of copies in its order, done on the other cores while those before are worked on.
class CheckAhead {
public:
    /// The list has to outlive the object.
    explicit CheckAhead(const std::vector<FileCopy>& copies);

    /// Of the next copy; nothing where a file cannot be read. Call it once for each copy.
    std::optional<CheckedFile> next() { return work_.next(); }

private:
    OrderedShares<std::optional<CheckedFile>> work_;
};

/// The bar of a job that goes once or several times through the same list.
class CopyWalk {
public:
    CopyWalk(Session& session, const std::vector<FileCopy>& copies, int rounds)
        : session_(session), copies_(copies),
          share_(100.0 / static_cast<double>(copies.size() * static_cast<std::size_t>(rounds) + 1)) {}

    /// Takes the step for each copy. With a job it is asked before each whether to go on: false when not, and
    /// at the end of the desktop's session with any list.
    template <class Step>
    bool round(const Job* cancellable, Step step) {
        for (const FileCopy& copy : copies_) {
            if (session_.ExitInProgress.endsCopies() || (cancellable && cancellable->isCancelled()))
                return false;
            step(copy);
            session_.user.updateProgress({}, {}, position_ += share_);
        }
        return true;
    }

private:
    Session& session_;
    const std::vector<FileCopy>& copies_;
    double share_, position_ = 0;
};

} // namespace morvane
