#pragma once

#include "core/run_size.h"

namespace morvane {

class Session;

/// How long the ground set made last took, in seconds; 0 before the first.
struct GroundPace {
    double groundSetSeconds = 0;
};

/// What a run of so many ground sets, one or more, is going to take. The time is that of the set made last;
/// before the first one some files of the stock are made to measure it, where the intermediate bitmaps are.
/// Raises what reading the stock raises.
RunSize groundRunSize(Session& session, int sets);

} // namespace morvane
