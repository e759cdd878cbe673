#pragma once

#include "core/session.h"

namespace morvane {

/// The fixed sequence of a start, up to and including the switches: the simulator's folder, the store, the
/// WideFS setting, the backup folder. False when the install folder cannot be used, when the user gave up
/// looking for the simulator, while another program upgrades the install, or after a failure was told: the
/// process then ends without the exit flow.
bool startUp(Session& session);

/// The unattended run: a cover code as the whole text ("CLR", "FEW", "SCT", "BKN", "OVC", exactly so). Any
/// other text leaves the cover open, which makes it "Partly Cloudy", without a word.
void runCommandLine(Session& session, const QString& argument);

/// Asks whether the simulator goes back to "Default" when a set of a weather stands in it, and does so on OK.
void checkResetTextures(Session& session);

/// The exit flow: asks that question but for an unattended run, a launch of the simulator and the end of the
/// desktop's session, releases the collections, empties "\METAR" when it holds a text file and closes the
/// store.
void exitProgram(Session& session);

/// Opens the store into `session.adoConn`. A failure shows a plain box; the start goes on without a store.
void connectDatabase(Session& session);
/// Closes it; nothing when there is none.
void closeDatabase(Session& session);
/// The monetary decimal separator of the locale; an empty one means ".".
QString getDecimalSeparator();

} // namespace morvane
