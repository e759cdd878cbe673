#pragma once

#include "core/session.h"
#include "simulator/restored_files.h"

namespace morvane {

/// Gives the pilot the simulator back as it was before Morvane's first copy: see Originals::restore and
/// runRestore. No set and no body counts as installed afterwards, the halo, the Dutch and the tropical
/// textures are off, and nothing can be undone any more.
std::optional<OriginalsReport> restoreOriginals(Session& session);
/// The same behind a question that says how much there is.
std::optional<OriginalsReport> askRestoreOriginals(Session& session);

} // namespace morvane
