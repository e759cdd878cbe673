#include "night/night_sets.h"

#include "night/night_generation.h"
#include "night/night_installation.h"
#include "sets/set_actions.h"

namespace morvane {

const SetKindFacts& NightKind::facts() {
    static const SetKindFacts facts{
        .word = u"Night"_s,
        .folder = u"Night Texture Sets"_s,
        .subfolders = {u"Texture"_s, u"Dutch"_s}, // the add-on's areas have no lights of their own
        .listScreen = Screen::frm_NightTextures,
        .refusalBreak = u"\n"_s,
        // Unlike on the ground the installed set may go when it stands alone, and not among several. Wanted.
        .protectsInstalled = false,
    };
    return facts;
}

void NightKind::takeInHand(NightSelection& selection, const clsNightTextureSet& set) {
    selection.SelectedNightSet = set.TextureSet;
    selection.SelectedNightDescription = set.Description;
    selection.colours = {};
}

template struct SetActions<NightKind>;

} // namespace morvane
