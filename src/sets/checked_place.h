#pragma once

#include <QString>
#include <cstdint>

namespace morvane {

/// What stands in a place of the simulator that the list of originals knows.
enum class PlaceState {
    ours,    ///< what we put there last
    earlier, ///< another one of ours: a run did not come to its end
    pilots,  ///< his own
    changed, ///< what another program put in the place of ours
    missing, ///< nothing, where ours was put
    empty,   ///< nothing, as before an install that did not come so far
};

/// How a check looks at files.
enum class CheckDepth {
    changedFiles, ///< reads those that size, time and number do not tell to be untouched; of kept ones the
                  ///< size
    everyFile,    ///< reads all
};

struct CheckedPlace {
    QString path; ///< below the simulator's folder
    PlaceState state = PlaceState::ours;
    QString where = {};    ///< what ours was copied from last, below the install folder; empty where none was
    std::int64_t time = 0; ///< of the last write, in nanoseconds since 1970; 0 where nothing stands
    bool isKept = false, isKeptSound = false; ///< the pilot's youngest file of that place

    /// Not as Morvane or the pilot left it.
    bool differs() const { return state == PlaceState::changed || state == PlaceState::missing; }
};

} // namespace morvane
