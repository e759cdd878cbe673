#pragma once

#include "core/session.h"

namespace morvane {

/// The question about a saved flight, its choice (frm_flight) and the start of the simulator with that
/// flight. Nothing on a WideFS client, where the simulator runs on the server. Whether the simulator was
/// started stands in `FlightSelected` of the session's modal state.
void startSavedFlight(Session& session);

/// The question whether the simulator shall be started now, and its start. On a WideFS client only the notice
/// that it can be started on the server.
void launchFlightSimulator(Session& session);

} // namespace morvane
