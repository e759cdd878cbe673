#pragma once

#include "core/session.h"

#include <vector>

namespace morvane {

enum class KeptKind {
    groundSets,
    skySets,
    nightSets,
    backup,
    originals,
    undo,
    baseImages,
    movedImages, ///< base images that an import of the pilot's own moved aside
    passing,     ///< intermediate bitmaps of the sets that were made last
    others,      ///< the rest of "\Backup"
};

/// A kind of thing that Morvane keeps in its install folder, or one backup.
struct KeptItem {
    KeptKind kind;
    QString name;           ///< "Ground sets"; of a backup its own
    QString remark = {};    ///< "30 May 2007, 21:14, partial"
    std::int64_t count = 0; ///< of sets those that have files, else files
    std::int64_t all = 0;   ///< of sets those that stay as colours, too; else the same
    std::int64_t bytes = 0;
    bool isRemovable = false; ///< see removeKept

    /// "38 of 40 sets", "1,183 files", "none".
    QString countWords() const;
};

struct KeptRoom {
    std::vector<KeptItem> items; ///< in the order of the table
    std::int64_t freeBytes = 0;  ///< of the disk; below 0 where the system does not tell

    std::int64_t bytes() const;
    /// "Morvane keeps 2.4 GB; 49 GB of the disk are free".
    QString summary() const;
};

/// Reads the store anew and looks at every file, so it takes its time with many sets. Of the last three kinds
/// there is no item where there is no file.
KeptRoom keptRoom(Session& session);

/// "860 MB" as `spaceText`, but "0 MB" for nothing.
QString keptText(std::int64_t bytes);

/// Names of the sets of a kind whose files can go, as the colours stay: neither "Default" nor the one that is
/// in the simulator.
template <class Kind>
QStringList setsToEmpty(Session& session);

} // namespace morvane
