#pragma once

#include "core/reported.h"
#include "core/session.h"
#include "sets/options_in_force.h"

namespace morvane {

// Options kept in the store, in the one row of `TEXTURE_SWITCH` (see option_table.h).

/// Reads all of them into the session's flags.
void readSwitches(Session& session);
/// The option of the flag as it is stored; false after the message of a failure, too.
bool storedSwitch(Session& session, bool OptionsInForce::*flag);
/// Stores the option of the flag.
Reported storeSwitch(Session& session, bool OptionsInForce::*flag, bool value);

// Options kept in the registry under the program's own key. Booleans there are the words "True" and "False".

/// Whether `InhibitCustomSplash` holds "True"; writes nothing.
bool isCustomSplashInhibited(const Session& session);
/// Reads `InhibitCustomSplash` into the flag; anything but the two words is taken, and written back, as
/// "False".
void getCustomSplashVal(Session& session);
/// Sets and stores the flag; true also puts the simulator's own splash back.
void setCustomSplashVal(Session& session, bool value);
/// Its value alone, in the session and the registry.
void storeSplashInhibition(Session& session, bool value);
/// The same of `IsWideClient`, blanks around it left out.
bool isWideClientStored(const Session& session);
/// Reads `IsWideClient` into the flag; asks the user when it is neither of the words and stores the answer,
/// if there is one.
void getSideFSVal(Session& session);
void setSideFSVal(Session& session, bool value);

} // namespace morvane
