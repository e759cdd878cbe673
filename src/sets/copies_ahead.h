#pragma once

#include "core/ordered_work.h"
#include "sets/originals.h"

#include <mutex>
#include <set>

namespace morvane {

/// What was done ahead for a copy whose turn it is.
enum class AheadOfCopy {
    nothing, ///< whoever copies does it all
    part,    ///< its part stands beside its place, see partOf
    stands,  ///< the place has its bytes already
};

/// Writes the parts of the next few copies of a list while the one whose turn it is is put in its place. What
/// is put where, and in which order, stays with the caller. Parts that nobody took are removed at the end; a
/// kill leaves some thirty of them at most, which the next install removes.
class CopiesAhead {
public:
    /// `places` of the copies in the spelling of the disk, prepared by `originals`, which has to stay.
    CopiesAhead(FileSystem& files, const Originals& originals, std::vector<FileCopy> copies,
                std::vector<FilePath> places);
    ~CopiesAhead();

    /// Call it in the order of the list: what was done for copies that are passed over is dropped. Raises
    /// what kept the part from being written.
    AheadOfCopy next(const FileCopy& copy);
    /// The part of the last `next` is in its place.
    void noteTaken();

private:
    struct Work {
        AheadOfCopy done = AheadOfCopy::nothing;
        std::optional<Error> failure = {};
    };
    Work work(std::size_t index);
    AheadOfCopy doAhead(std::size_t index);

    FileSystem& files_;
    const Originals& originals_;
    std::vector<FileCopy> copies_;
    std::vector<FilePath> places_;
    std::vector<bool> isSecond_; ///< an earlier copy has the same place, and so a part of the same name
    std::size_t next_ = 0;
    std::mutex mutex_;
    std::set<std::size_t> parts_;              ///< written or being written, by index
    std::optional<OrderedShares<Work>> ahead_; ///< the last: it uses all others
};

} // namespace morvane
