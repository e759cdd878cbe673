#pragma once

#include "core/session.h"
#include "sets/originals.h"

namespace morvane {

/// Options that change files of the simulator at once, without an install: each of these sets the session's
/// flag and stores it. While another job runs or another program writes they raise `interrupted`, and nothing
/// changes.

/// Rural textures of Dutch style on the installed ground and night set, or their generic ones again. False
/// after the message that there is no ground set; the flag is off then and nothing is stored.
bool switchDutch(Session& session, bool isOn);
/// The dawn and dusk forms of the tropics on the installed ground set. False as above. Raises when a file
/// cannot be copied; nothing is stored then.
bool switchTropical(Session& session, bool isOn);
/// Our own lights of aircraft and airports or the simulator's. Raises when the file cannot be copied.
void switchHalo(Session& session, bool isOn);
/// Whether the program ends without a question about the sets that are installed.
void switchFastExit(Session& session, bool isOn);

/// The files of the two switches. An empty name stands for no installed set. A failure is told, and the rest
/// of the list stays uncopied.
void dutchTexturesOn(Session& session, const QString& groundName, const QString& nightName);
void dutchTexturesOff(Session& session, const QString& groundName, const QString& nightName);
/// Raises when a file cannot be copied.
void tropicalTextures(Session& session, bool isOn, const QString& groundName);

/// The lists of copies behind them.
std::vector<FileCopy> dutchCopies(Session& session, bool isOn, const QString& groundName,
                                  const QString& nightName);
std::vector<FileCopy> tropicalCopies(Session& session, bool isOn, const QString& groundName);

/// Copies the list over targets that exist, under a progress message; a read-only target loses its mark.
/// Raises "File not found" for a target that is missing.
void copyWithProgress(Session& session, const std::vector<FileCopy>& copies);

} // namespace morvane
