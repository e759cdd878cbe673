#pragma once

#include "core/session.h"
#include "simulator/originals.h"

#include <QHash>
#include <optional>

namespace morvane {

/// What of the pilot's lies among the originals, for those who want the pilot's own file where one of ours
/// may stand in the simulator.
class KeptOriginals {
public:
    /// Raises when the list of originals cannot be read.
    explicit KeptOriginals(Session& session);

    /// The kept file in the place of that one of the simulator; nothing where none was kept, or where it is
    /// no longer what was kept.
    std::optional<FilePath> of(const FilePath& simulatorFile) const;

private:
    Session& session_;
    QHash<QString, KeptOriginal> kept_; ///< by path below the simulator, in one case
};

} // namespace morvane
