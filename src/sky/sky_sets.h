#pragma once

#include "sets/set_kind.h"
#include "sky/sky_selection.h"
#include "sky/sky_texture_sets.h"

namespace morvane {

class SkyActivation;
class SkyInstallation;
struct SkySharing;

/// The sky as a kind of set.
struct SkyKind : KindOfSet<SkyKind, clsSkyTextureSet, SkySelection> {
    using Activation = SkyActivation;
    using Installation = SkyInstallation;
    using Sharing = SkySharing;

    static const SetKindFacts& facts();
    static constexpr auto nameInHand = &SkySelection::SelectedSkySet;
    static constexpr auto descriptionInHand = &SkySelection::SelectedSkyDescription;
    static constexpr auto refreshList = &SkySelection::RefreshSkyList;
    static constexpr bool hasTicks = true;
    /// A second activation gives a generated set its files of sunrise and sunset.
    static constexpr bool activatesAgain = true;
    static QString coverInHand(const SkySelection& selection) { return selection.SelectedSkyCover; }
    static void takeInHand(SkySelection& selection, const clsSkyTextureSet& set);
};

// Every kind's calls under the names of the sky.
inline constexpr auto loadedSkySets = loadedSets<SkyKind>;
inline constexpr auto refreshSkySets = refreshSets<SkyKind>;
inline constexpr auto findSkySet = findSet<SkyKind>;
inline constexpr auto skySetFolder = setFolder<SkyKind>;
inline constexpr auto clickSkyRow = clickSetNamed<SkyKind>;

} // namespace morvane
