#pragma once

#include "core/ini_file.h"
#include "core/session.h"
#include "imaging/sky_group.h"

namespace morvane {

/// What the colour page of the sky is set to, beside its table of numbers (`skyPaletteGroups`).
struct SkyTuningState {
    bool isLoaded = false;          ///< once in a run, from the settings file or as for a first run
    std::int16_t selectedGroup = 1; ///< 1 to 10
    QString cloudCover;             ///< at most 15 characters, as the base set
    std::int16_t cloudIndex = 1;    ///< 1 to 5
    QString baseSet;
};

/// Takes what a settings file says; false, and nothing taken, where it names no cloud cover. One that is none
/// of the five is kept as text and leaves the index as it was.
bool readSkySettings(const IniFile& settings, SkyTuningState& tuning, SkyGroups& table);

/// Loads what the colour page is set to, once in a run: from "LastSkySettings.cfg", or, when there is none or
/// it names no cloud cover, as for a first run (a clear sky over "Default", all numbers and regions zero).
void loadSkyTuning(Session& session);

/// Writes "LastSkySettings.cfg" with the regions of the map, whatever the table holds. A state that was not
/// loaded in this run is not written: its zeros would take the place of what the pilot left. Raises when the
/// file cannot be written.
void saveLastSkySettings(Session& session);

/// Makes the cover of that number, 1 to 5, the tuned one; any other raises "Subscript out of range".
void tuneCloudCover(Session& session, int cloudIndex);

} // namespace morvane
