#pragma once

#include "core/session.h"

namespace morvane {

/// frm_flight: the name of the flight clicked last, and whether OK was pressed.
struct FlightChoice {
    QString SelectedFlightName;
    bool FlightSelected = false;
};

/// The question about a saved flight, its choice (frm_flight) and the start of the simulator with that
/// flight. Nothing on a WideFS client, where the simulator runs on the server. Whether a flight was chosen,
/// so that nobody is asked again, stands in `FlightChoice`. True when the
/// simulator was started; why it was not is told.
bool startSavedFlight(Session& session);

/// The question whether the simulator shall be started now, and its start. On a WideFS client only the notice
/// that it can be started on the server. True when it was started; why it was not is told.
bool launchFlightSimulator(Session& session);

/// The start without a question, as somebody has asked for it beforehand: with that saved flight, or with
/// none where the name is empty. Else as `launchFlightSimulator`.
bool startUnasked(Session& session, const QString& flightName);

/// The same behind an install by hand, where nobody needs to know; a failure is told.
void offerSimulatorStart(Session& session);

} // namespace morvane
