#pragma once

#include "support/small_install.h"

namespace morvane::test {

/// Rows that the two files of the upgrade bring.
inline constexpr int newAirports = 6, newReports = 4;

/// Turns a small install into one of version 2 over which the files of version 2.1 were laid: old tables with
/// two airports and a report, two sets of its own, the simulator's splash. Closes its store.
void makeVersionTwo(SmallInstall& install);

} // namespace morvane::test
