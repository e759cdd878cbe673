#pragma once

#include "sets/set_choice.h"

#include <optional>

namespace morvane {

struct CloudCover;

/// A ground and a sky set that were installed for a cover.
struct MatchedSets {
    QString ground, sky;
    int filesCopied = 0;
};

/// Asks, and on Yes installs; nothing when the user said no.
std::optional<MatchedSets> askInstallMatchingSets(Session& session, const CloudCover& cover);
/// Installs activated sets that fit the cover: a ground set first, then a sky set, each "Default" when there
/// is none. A failure is told; what was installed before it stands.
MatchedSets installMatchingSets(Session& session, const CloudCover& cover);

/// The next cover to try, one step away.
const CloudCover& getClosestCloudCover(const CloudCover& cover);
/// Which cover of a round the search below compares with the sets.
enum class ClosestSearch { nextCover, currentCover };
/// Walks the covers from that one on, four rounds at most, and gives the first set of the first round that
/// has any; "Default" when none has.
QString closestSet(const std::vector<ActivatedSet>& sets, ClosestSearch search, const CloudCover& cover);

/// What the road of the Fly Now button did.
struct FlyReport {
    std::optional<MatchedSets> installed;
    bool isSimulatorStarted = false;
};

/// The road of the Fly Now button: a cover is chosen, then `flyWithCover`. A cancelled choice ends it, with
/// nothing installed and nothing started.
FlyReport flyNow(Session& session);
/// The road from the chosen cover on: the question and the install, a saved flight, the simulator.
FlyReport flyWithCover(Session& session, const CloudCover& cover);

} // namespace morvane
