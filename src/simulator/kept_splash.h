#pragma once

namespace morvane {

class Session;

/// Keeps the pilot's own splash for the option that brings it back. Where one of ours stands the pilot's is
/// among the originals; if it is not there either, what was kept before is left alone. Raises what reading
/// and copying raise, also for a simulator without a splash.
void keepPilotsSplash(Session& session);

} // namespace morvane
