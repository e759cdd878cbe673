#pragma once

#include "core/session.h"

namespace morvane {

/// Files of a new version that was laid over an old install: the first one asks for the upgrade, both bring
/// its rows (see upgrade_tables.h).
FilePath airportFile(const Session& session);
FilePath decodedMetarFile(const Session& session);

/// Brings an install of version 2 to 2.1 and leaves the store connected: keeps the store and the simulator's
/// splash, adds tables and columns, replaces airports and reports, makes the Dutch textures of the sets that
/// exist, and removes the two files at last. Every step looks first whether it has been done, so a start that
/// was cut short is taken up by the next one; a failure is raised and leaves the files for that.
void updateToV21(Session& session);

} // namespace morvane
