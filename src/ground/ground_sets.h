#pragma once

#include "ground/ground_selection.h"
#include "ground/texture_sets.h"
#include "sets/recoloured_kind.h"
#include "sets/recoloured_sharing.h"
#include "sets/set_kind.h"

namespace morvane {

class GroundGeneration;
class GroundInstallation;

/// The ground as a kind of set.
struct GroundKind : KindOfSet<GroundKind, clsTextureSet, GroundSelection> {
    using Activation = GroundGeneration;
    using Installation = GroundInstallation;
    using Sharing = RecolouredSharing<GroundKind>;

    static const SetKindFacts& facts();
    static constexpr auto nameInHand = &GroundSelection::SelectedGroundSet;
    static constexpr auto descriptionInHand = &GroundSelection::SelectedGroundDescription;
    static constexpr auto refreshList = &GroundSelection::RefreshGroundList;
    static constexpr bool hasTicks = false;
    static constexpr bool activatesAgain = false;
    static QString coverInHand(const GroundSelection& selection) { return selection.SelectedGroundCover; }
    static void takeInHand(GroundSelection& selection, const clsTextureSet& set);
};

// Every kind's calls under the names of the ground.
inline constexpr auto loadedGroundSets = loadedSets<GroundKind>;
inline constexpr auto refreshGroundSets = refreshSets<GroundKind>;
inline constexpr auto findGroundSet = findSet<GroundKind>;
inline constexpr auto groundSetFolder = setFolder<GroundKind>;
inline constexpr auto clickGroundRow = clickSetNamed<GroundKind>;
inline constexpr auto loadGroundSelection = loadSelection<GroundKind>;

} // namespace morvane
