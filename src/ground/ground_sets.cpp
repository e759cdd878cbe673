#include "ground/ground_sets.h"

#include "ground/ground_generation.h"
#include "ground/ground_installation.h"
#include "sets/set_actions.h"
#include "sets/set_names.h"

namespace morvane {

const SetKindFacts& GroundKind::facts() {
    static const SetKindFacts facts{
        .word = u"Ground"_s,
        .folder = u"Texture Sets"_s,
        .subfolders = {u"Texture"_s, u"UTEurLC"_s, u"Dutch"_s},
        .listScreen = Screen::frm_MVTextures,
        .refusalBreak = u"\n"_s,
        .protectsInstalled = true,
    };
    return facts;
}

void GroundKind::takeInHand(GroundSelection& selection, const clsTextureSet& set) {
    selection.SelectedGroundKey = listKeyOf(set);
    selection.SelectedGroundSet = set.TextureSet;
    selection.SelectedGroundActivated = set.Actvated == flagText(true);
    selection.SelectedGroundCover = set.CloudCover;
    selection.SelectedGroundDescription = set.Description.left(longestDescription);
    selection.colours = {};
}

template struct SetActions<GroundKind>;

} // namespace morvane
