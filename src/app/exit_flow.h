#pragma once

#include "core/user_interface.h"

namespace morvane {

class Session;

/// The question on the way out, for the covers of the installed ground and sky set; an empty one is none to
/// reset, and one of the two is given.
Message resetQuestion(const QString& ground, const QString& sky);

/// Asks whether the simulator goes back to "Default" when a set of a weather stands in it, and does so on OK.
void checkResetTextures(Session& session);

/// The exit flow: asks that question but for an unattended run, a launch of the simulator and the end of the
/// desktop's session, releases the collections, empties "\METAR" when it holds a text file and closes the
/// store.
void exitProgram(Session& session);

} // namespace morvane
