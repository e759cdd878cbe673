#pragma once

#include "core/session.h"
#include "sets/originals.h"

namespace morvane {

/// Gives the pilot the simulator back as it was before Morvane's first copy, as a job of its own: see
/// Originals::restore. No set and no body counts as installed afterwards, and the halo, the Dutch and the
/// tropical textures are off. Files that were left as they are are named in a message, which is an
/// Exclamation where a kept file is damaged; at the end one line says what was done. Nothing after the
/// message of a failure.
std::optional<OriginalsReport> restoreOriginals(Session& session);

} // namespace morvane
