#pragma once

#include "core/session.h"

namespace morvane {

/// Loads what the colour page is set to, once in a run: from "LastSkySettings.cfg", or, when there is none or
/// it names no cloud cover, as for a first run (a clear sky over "Default", all numbers and regions zero). A
/// cloud cover that is none of the five is kept as text and leaves the index as it was.
void loadSkyTuning(Session& session);

/// Writes "LastSkySettings.cfg" with the regions of the map, whatever the table holds. A state that was not
/// loaded in this run is not written: its zeros would take the place of what the pilot left. Raises when the
/// file cannot be written.
void saveLastSkySettings(Session& session);

/// Makes the cover of that number, 1 to 5, the tuned one; any other raises "Subscript out of range".
void tuneCloudCover(Session& session, int cloudIndex);

} // namespace morvane
