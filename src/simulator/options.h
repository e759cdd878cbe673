#pragma once

#include "core/session.h"

namespace morvane {

/// Options kept in the registry under the program's own key. Booleans there are the words "True" and "False".

/// Reads the four switches of the store into the session's flags.
void readSwitches(Session& session);
/// Whether `InhibitCustomSplash` holds "True"; writes nothing.
bool isCustomSplashInhibited(const Session& session);
/// Reads `InhibitCustomSplash` into the flag; anything but the two words is taken, and written back, as
/// "False".
void getCustomSplashVal(Session& session);
/// Sets and stores the flag; true also puts the simulator's own splash back.
void setCustomSplashVal(Session& session, bool value);
/// Reads `IsWideClient` into the flag; asks the user when it is neither of the words and stores the answer,
/// if there is one.
void getSideFSVal(Session& session);
void setSideFSVal(Session& session, bool value);
} // namespace morvane
