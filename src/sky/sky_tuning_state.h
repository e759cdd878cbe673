#pragma once

#include "core/session.h"

namespace morvane {

/// What the colour page of the sky is set to, beside its table of numbers (`skyPaletteGroups`).
struct SkyTuningState {
    bool isLoaded = false;          ///< once in a run, from the settings file or as for a first run
    std::int16_t selectedGroup = 1; ///< 1 to 10
    QString cloudCover;             ///< at most 15 characters, as the base set
    std::int16_t cloudIndex = 1;    ///< 1 to 5
    QString baseSet;
};

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
