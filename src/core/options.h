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
/// Folder in which the user keeps saved flights, asked for until it is usable; empty when the user cancels.
QString getNonEnglishPath(Session& session);
/// That folder as it is stored, whatever it names; empty when none is.
QString storedFlightsFolder(const Session& session);
/// What is known of that folder without a question: the usual one, else what is stored, be it empty or gone.
QString usersFlightsFolder(Session& session);
/// Lets the user choose that folder anew, from where it is now. The program's own one is refused.
void setNonEnglishRegVal(Session& session);
/// Whether the path names the program's own "\\Flights", however it is spelt: in another case, with
/// separators behind it, through a link. Its flights are copies that every start replaces.
bool isOwnFlightsFolder(const Session& session, const QString& path);

/// "True" or "False", as the registry and the store's text columns hold flags.
QString flagText(bool value);

} // namespace morvane
