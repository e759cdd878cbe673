#pragma once

#include "sets/set_choice.h"

#include <optional>

namespace morvane {

struct CloudCover;

/// Why a set was taken for a cover.
enum class SetFit {
    fitting, ///< it is one for the cover
    nearest, ///< one for the closest cover that has any
    standard ///< "Default", as no search found any
};
struct ChosenSet {
    QString name;
    SetFit fit = SetFit::standard;
};

/// A ground and a sky set that were installed for a cover.
struct MatchedSets {
    ChosenSet ground, sky;
    int filesCopied = 0;
    bool isWhole = false; ///< both went in; else the user knows why, or wanted it so
};

/// Asks, and on Yes installs; nothing when the user said no.
std::optional<MatchedSets> askInstallMatchingSets(Session& session, const CloudCover& cover);
/// Installs activated sets that fit the cover: a ground set first, then a sky set, each "Default" when there
/// is none. A failure is told; what was installed before it stands.
MatchedSets installMatchingSets(Session& session, const CloudCover& cover);
/// The choice alone: nothing is installed and nothing told. It draws anew each time. Raises.
MatchedSets chooseMatchingSets(Session& session, const CloudCover& cover);

/// The next cover to try, one step away.
const CloudCover& getClosestCloudCover(const CloudCover& cover);
/// Which cover of a round the search below compares with the sets.
enum class ClosestSearch { nextCover, currentCover };
/// Walks the covers from that one on, four rounds at most, and gives the first set of the first round that
/// has any; nothing when none has.
std::optional<QString> closestSet(const std::vector<ActivatedSet>& sets, ClosestSearch search,
                                  const CloudCover& cover);

/// What the road of the Fly Now button did.
struct FlyReport {
    std::optional<MatchedSets> installed;
    bool isSimulatorStarted = false;
};

/// The road of the Fly Now button: a cover is chosen, then `flyWithCover`. A cancelled choice ends it, with
/// nothing installed and nothing started.
FlyReport flyNow(Session& session);
/// The same for a flight plan that was opened (see `coverAlongPlan`). Raises when it cannot be read.
FlyReport flyAlongPlan(Session& session, const FilePath& plan);
/// The road from the chosen cover on: the question and the install, a saved flight, the simulator.
FlyReport flyWithCover(Session& session, const CloudCover& cover);

} // namespace morvane
