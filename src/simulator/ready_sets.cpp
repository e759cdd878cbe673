#include "simulator/ready_sets.h"

#include "core/job.h"
#include "ground/ground_generation.h"
#include "ground/ground_sets.h"
#include "sets/cloud_cover.h"
#include "sets/set_removal.h"
#include "sky/sky_base_sets.h"
#include "sky/sky_generation.h"
#include "sky/sky_sets.h"

#include <algorithm>

namespace morvane {

namespace {

using CoverCounts = std::array<int, cloudCoverCount>;

template <class Kind>
CoverCounts activatedSets(Session& session) {
    const std::vector<ActivatedSet> sets = setKind<Kind>().activated(session);
    CoverCounts counts{};
    std::transform(
        cloudCovers(), cloudCovers() + cloudCoverCount, counts.begin(),
        [&](const CloudCover& cover) { return static_cast<int>(namesForCover(sets, cover.word).size()); });
    return counts;
}

const QString& baseSkyOf(const ReadySet& set, int number) {
    if (set.cloudNumber == cloudCoverCount) return overcastBaseSet;
    return skyBaseSetsInRun()[number / 2 % skyBaseSetsInRun().size()]; // every second one is a ground
}

Reported makeSky(Session& session, const Job& job, const QString& baseSet, const ReadySet& set, int number,
                 int total) {
    if (!SkyGeneration(session).createAutoSkySet(baseSet, set.cloudNumber, number, total)) return false;
    const clsSkyTextureSets& sets = loadedSkySets(session);
    // Half a sky would be taken for a flight.
    if (job.isCancelled() && sets.Count() > 0)
        removeSet(session, setKind<SkyKind>(), nameOf(*sets.GetItem(sets.Count())), false);
    return true;
}

} // namespace

std::vector<ReadySet> missingReadySets(Session& session, int setsOfEach) {
    const CoverCounts ground = activatedSets<GroundKind>(session), sky = activatedSets<SkyKind>(session);
    std::vector<ReadySet> missing;
    for (int have = 0; have < setsOfEach; ++have)
        for (int number = 1; number <= cloudCoverCount; ++number)
            for (const bool isGround : {true, false})
                if ((isGround ? ground : sky)[static_cast<std::size_t>(number - 1)] <= have)
                    missing.push_back({isGround, number});
    return missing;
}

Reported makeReadySet(Session& session, const Job& job, const ReadySet& set, int number, int total) {
    if (set.isGround) return GroundGeneration(session).createOneSet(job, set.cloudNumber, number, total);
    return makeSky(session, job, baseSkyOf(set, number), set, number, total);
}

} // namespace morvane
