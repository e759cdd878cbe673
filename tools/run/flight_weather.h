#pragma once

#include "cli/console_user.h"
#include "core/session.h"

namespace morvane {

/// A line on stdout.
void say(const QString& text);

// Ways to the weather of the flight. Each tells what it found and puts the cover into the session's lists;
// false, after the reason, when there is none.

/// Of one report.
bool takeWeatherOfReport(Session& session, const QString& metar);
/// Of the stored reports of two airports, by code; an empty code leaves that end of the flight unknown.
bool takeWeatherOfAirports(Session& session, ConsoleUser& user, const QString& departure,
                           const QString& destination);
/// Of the stored reports along a flight plan.
bool takeWeatherOfPlan(Session& session, const QString& file);

/// Fetches the last hour's cycle from the weather server into the store. False after a failure's
/// message.
bool refreshCycle(Session& session, ConsoleUser& user);

} // namespace morvane
