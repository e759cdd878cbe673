#pragma once

#include "cli/console_user.h"
#include "core/session.h"

namespace morvane {

/// A line on stdout.
void say(const QString& text);

// Ways to the weather of the flight. Each tells what it found and gives the cloud class; 0, after the reason,
// when there is none.

/// Of one report.
std::int16_t classOfReport(Session& session, const QString& metar);
/// Of the stored reports of two airports, by code; an empty code leaves that end of the flight unknown.
std::int16_t classOfAirports(Session& session, ConsoleUser& user, const QString& departure,
                             const QString& destination);
/// Of the stored reports along a flight plan.
std::int16_t classOfPlan(Session& session, const QString& file);

/// Fetches the last hour's cycle from the weather server into the store. False after a failure's
/// message.
bool refreshCycle(Session& session, ConsoleUser& user);

} // namespace morvane
