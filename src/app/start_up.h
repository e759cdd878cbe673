#pragma once

namespace morvane {

class Session;

/// The fixed sequence of a start, up to and including the switches: the simulator's folder, the store, the
/// WideFS setting, the backup folder. False when the install folder cannot be used, when the user gave up
/// looking for the simulator, while another program upgrades the install, or after a failure was told: the
/// process then ends without the exit flow.
bool startUp(Session& session);

} // namespace morvane
