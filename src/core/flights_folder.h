#pragma once

#include "core/file_path.h"

namespace morvane {

class Session;

// Where the user keeps saved flights and flight plans. What is chosen stands in the registry.

/// "Flight Simulator Files" below the documents, or the folder that is asked for when there is none. Empty
/// when the user named none.
FilePath userFlightsFolder(Session& session);

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

} // namespace morvane
