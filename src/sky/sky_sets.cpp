#include "sky/sky_sets.h"

#include "sets/set_actions.h"
#include "sky/sky_activation.h"
#include "sky/sky_installation.h"
#include "sky/sky_sharing.h"

namespace morvane {

const SetKindFacts& SkyKind::facts() {
    static const SetKindFacts facts{
        .word = u"Sky"_s,
        .folder = u"Sky Texture Sets"_s,
        .subfolders = {},
        .listScreen = Screen::frm_KMTextures,
        .refusalBreak = u"\n\n"_s,
        .protectsInstalled = true,
    };
    return facts;
}

void SkyKind::takeInHand(SkySelection& selection, const clsSkyTextureSet& set) {
    selection.SelectedSkyKey = listKeyOf(set);
    selection.SelectedSkySet = set.SkyTextureSet;
    selection.SelectedSkyActivated = set.Activated == flagText(true);
    selection.SelectedSkyCover = set.CloudCover;
    selection.SelectedSkyGroup = set.TextureSetGroup;
    selection.SelectedSkyDescription = set.Description;
}

template struct SetActions<SkyKind>;

} // namespace morvane
