#pragma once

#include "core/session.h"
#include "sheets/sheet.h"

namespace morvane {

/// What lies in the simulator now in the places of ground, night and sky, over the pilot's own files as they
/// were kept; a file in whose place nothing was kept stands for itself. Raises what a listing raises, and
/// when the list of originals cannot be read.
Sheet simulatorSheet(Session& session);

} // namespace morvane
