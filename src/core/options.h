#pragma once

#include "core/session.h"

namespace morvane {

/// Options kept in the registry under the program's own key. Booleans there are the words "True" and "False".

/// Reads the four switches of the store into the session's flags.
void readSwitches(Session& session);
/// Reads `InhibitCustomSplash` into the flag; anything but the two words is taken, and written back, as
/// "False".
void getCustomSplashVal(Session& session);
/// Sets and stores the flag; true also puts the simulator's own splash back.
void setCustomSplashVal(Session& session, bool value);
/// Reads `IsWideClient` into the flag; asks the user and stores the answer when it is neither of the words.
void getSideFSVal(Session& session);
void setSideFSVal(Session& session, bool value);
/// Folder in which the user keeps saved flights, asked for until it is usable; empty when the user cancels.
QString getNonEnglishPath(Session& session);
/// What is known of that folder without a question: the usual one, else what is stored, be it empty or gone.
QString usersFlightsFolder(Session& session);
/// Lets the user choose that folder anew, from where it is now.
void setNonEnglishRegVal(Session& session);

/// "True" or "False", as the registry and the store's text columns hold flags.
QString flagText(bool value);

} // namespace morvane
