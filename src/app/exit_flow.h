#pragma once

namespace morvane {

class Session;

/// Asks whether the simulator goes back to "Default" when a set of a weather stands in it, and does so on OK.
void checkResetTextures(Session& session);

/// The exit flow: asks that question but for an unattended run, a launch of the simulator and the end of the
/// desktop's session, releases the collections, empties "\METAR" when it holds a text file and closes the
/// store.
void exitProgram(Session& session);

} // namespace morvane
