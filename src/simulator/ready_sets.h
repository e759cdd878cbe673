#pragma once

#include "core/reported.h"

#include <vector>

namespace morvane {

class Job;
class Session;

/// A set that is made so that a weather has one.
struct ReadySet {
    bool isGround;   ///< else of the sky
    int cloudNumber; ///< 1 to 5
};

/// Those that are missing until each cloud cover has so many activated sets of the ground and of the sky. One
/// of each comes before the second of any, so that what a cancel leaves serves every weather.
std::vector<ReadySet> missingReadySets(Session& session, int setsOfEach);

/// Makes one in random colours as a part of the job; a cancel takes it away again. `number`, from 1, chooses
/// among the base skies. False when the store refused it, which was told.
Reported makeReadySet(Session& session, const Job& job, const ReadySet& set, int number, int total);

} // namespace morvane
