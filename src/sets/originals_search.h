#pragma once

#include "core/literals.h"
#include "sets/original_facts.h"

namespace morvane {

/// Which list belongs to a simulator's folder.
struct OriginalsChoice {
    /// Where it lies below "Backup\Originals", and the files it keeps: empty for the first simulator, then
    /// "Simulator 2\" and so on.
    QString prefix;
    std::vector<OriginalFact> facts;
    bool isOnDisk =
        false; ///< headed with this folder; otherwise the list has to be written before it is added to
    /// Of a simulator that seems to have moved: the list as it was, to be left beside as `leftListName`,
    /// since the simulator may turn up in its old place again.
    QByteArray left = {};
};

inline const QString originalsListName = u"originals.lst"_s;
inline const QString leftListName = u"originals before the move.lst"_s;

/// Looks through the lists below `folder` ("Backup\Originals"); nothing is written. In this order: the one
/// headed with this folder; one without a head, as they were of old; one of a simulator that has moved here;
/// the one that it left when it moved away; a new one. docs/originals.md says how a move is known.
/// Raises when a list cannot be read, or when a newer version wrote one.
OriginalsChoice findOriginals(FileSystem& files, const FilePath& simulator, const FilePath& folder);

} // namespace morvane
