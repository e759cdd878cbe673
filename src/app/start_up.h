#pragma once

#include "core/install_folder.h"
#include "core/reported.h"

#include <functional>

namespace morvane {

class Session;

/// The fixed sequence of a start, up to and including the switches: the simulator's folder, the store, the
/// WideFS setting, the backup folder. False when the install folder cannot be used, when the user gave up
/// looking for the simulator, while another program upgrades the install, or after a failure was told: the
/// process then ends without the exit flow.
/// Where nobody may write a start for reading, and anywhere one for a trial, leaves out what it would write:
/// the first run, the upgrade and the store's new columns. `simulatorIsFound` is called before the store is
/// opened; it may show that the program starts.
Reported startUp(
    Session& session, InstallUse use = InstallUse::writing,
    const std::function<void()>& simulatorIsFound = [] {});

} // namespace morvane
