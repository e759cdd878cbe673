#pragma once

#include "night/night_selection.h"
#include "night/night_texture_sets.h"
#include "sets/recoloured_kind.h"
#include "sets/recoloured_sharing.h"
#include "sets/set_kind.h"

namespace morvane {

class NightGeneration;
class NightInstallation;

/// The night as a kind of set. The weather chooses none.
struct NightKind : KindOfSet<NightKind, clsNightTextureSet, NightSelection> {
    using Activation = NightGeneration;
    using Installation = NightInstallation;
    using Sharing = RecolouredSharing<NightKind>;

    static const SetKindFacts& facts();
    static constexpr auto nameInHand = &NightSelection::SelectedNightSet;
    static constexpr auto descriptionInHand = &NightSelection::SelectedNightDescription;
    static constexpr auto refreshList = &NightSelection::RefreshNightList;
    static constexpr bool hasTicks = false;
    static constexpr bool activatesAgain = false;
    static QString coverInHand(const NightSelection&) { return {}; }
    static void takeInHand(NightSelection& selection, const clsNightTextureSet& set);
};

// Every kind's calls under the names of the night.
inline constexpr auto loadedNightSets = loadedSets<NightKind>;
inline constexpr auto refreshNightSets = refreshSets<NightKind>;
inline constexpr auto findNightSet = findSet<NightKind>;
inline constexpr auto nightSetFolder = setFolder<NightKind>;
inline constexpr auto clickNightRow = clickSetNamed<NightKind>;
inline constexpr auto loadNightSelection = loadSelection<NightKind>;

} // namespace morvane
