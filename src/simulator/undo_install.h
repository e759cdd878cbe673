#pragma once

#include "simulator/restored_files.h"

namespace morvane {

/// Asks, and gives the simulator's files back as they were before the last install, option or base install,
/// and with them what the store called installed: see Originals::undo and runRestore. A file that failed can
/// be tried again; else nothing is left to undo. Nothing without a Yes, and after the message that there is
/// nothing to undo.
std::optional<OriginalsReport> undoLastInstall(Session& session);

} // namespace morvane
