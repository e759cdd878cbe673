#pragma once

#include "core/session.h"
#include "sets/copies_ahead.h"

namespace morvane {

/// What is kept of the session's simulator. Raises as the constructor does.
Originals originalsOf(const Session& session);

/// The only way by which a file of ours gets into the simulator's folders: the pilot's own file is kept
/// first, and the target is old or new as a whole at every moment.
class SimulatorCopier {
public:
    explicit SimulatorCopier(Session& session);

    /// Takes the whole list before the first copy: clears what a killed run left beside the targets, keeps
    /// the pilot's files and notes what will be put where. The failure of one file is raised by its copy.
    /// This and the copies raise `interrupted` once the desktop's session ends: the rest of the list stays.
    /// Copies that come in the order of the list find their part written already, by other threads.
    void prepare(const std::vector<FileCopy>& copies);
    /// The first half alone, where the files are the pilot's own.
    void clearStrays(const std::vector<FileCopy>& copies);
    /// Keeps what stands in the places of such files, unless it is known.
    void keepAll(const std::vector<FileCopy>& copies);
    bool isKnown(const FileCopy& copy, const FileFingerprint& standing) {
        return originals_.isKnown(copy.target, standing);
    }
    /// See Originals: for a copy over what the pilot does not want. Before `prepare`.
    void layAside(const FileCopy& copy) { originals_.layAside(copy.target); }
    /// The other half alone, for a file of ours among those.
    void announce(const FileCopy& copy) { originals_.prepare({copy}); }
    /// Something stands where the copy will go.
    bool isThere(const FileCopy& copy) { return session_.files.exists(originals_.find(copy.target)); }
    /// `standing` as for Originals::place.
    void copy(const FileCopy& copy, const std::optional<SeenFile>& standing = {});
    /// The same for a target that may be marked read-only: the mark goes first, and stays gone. Base install
    /// and options have always been so free; the installs of sets are not.
    void copyOverReadOnly(const FileCopy& copy);
    /// A folder for copies; a restore of the originals takes it away when it is empty by then.
    void makeFolder(const FilePath& folder) { originals_.makeFolder(folder); }
    /// After the last copy of the list.
    void finish() {
        ahead_.reset(); // has no more to do
        originals_.settle();
    }

private:
    void put(const FileCopy& copy, const FilePath& place);

    Session& session_;
    Originals originals_;
    std::optional<CopiesAhead> ahead_; ///< of the prepared list
};

/// Raises `interrupted` once the desktop's session ends.
void endWithSession(const Session& session);

/// One file, with everything that SimulatorCopier does for a list.
void copyIntoSimulator(Session& session, const FilePath& source, const FilePath& target);

/// The simulator's splash, "\Uires\dlgsplash.bmp".
FilePath splashTarget(const Session& session);

/// Appends every file of `source` that the mask takes, to be put under its own name into `target`.
void addFolderFiles(Session& session, const FilePath& source, const QString& mask, const FilePath& target,
                    std::vector<FileCopy>& copies);

} // namespace morvane
