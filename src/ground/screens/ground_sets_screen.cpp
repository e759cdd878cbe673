#include "ground/screens/ground_sets_screen.h"

#include "ground/ground_selection.h"
#include "ground/ground_sets.h"
#include "ground/sample_textures.h"
#include "sets/options_in_force.h"

namespace morvane {

namespace {

constexpr QRgb installedColour = qRgb(255, 0, 0);

const HostKeys windowKeys{u"texture sets"_s, u"ground"_s, u"btn_2d"_s,
                          u"Click to minimize Ground Textures screen."_s};

const SetListSetup listPage = textureListPage(
    // The two sentences have never been parted by a full stop.
    u"To create a series of ground texture sets please click the create button and then enter the number "
    "of each cloud cover value required into the text boxes on the dialog screen that appears. Click the "
    "checkmark button to commence the creation process These sets take 10 - 20 minutes each to create "
    "therefore please allow sufficient time for the creation process. "_s,
    {{u"Name"_s, 160}, {u"Activated"_s, 68}, {u"Cloud Cover"_s, 84}},
    {u"btn_textureCreate"_s, u"create ts"_s});

SetRow rowOf(const clsTextureSet& set) {
    return {u"Key:"_s + QString::number(set.TsID),
            {set.TextureSet, set.Actvated, set.CloudCover},
            {set.TextureSet, u"Activated?"_s, u"Cloud Cover"_s},
            set.Installed ? installedColour : palette::textBlue};
}

} // namespace

frm_MVTextures::frm_MVTextures(Shell& shell)
    : SetListForm(shell, u"frm_MVTextures"_s, groundLook, windowKeys, u"frm_GroundColorize"_s, listPage),
      sample_(session(), session().state<GroundSelection>().colours) {}

void frm_MVTextures::formatList() {
    int row = rowInHand();
    formatGroundSets(row);
}

std::vector<SetRow> frm_MVTextures::setRows() {
    if (session().state<GroundSelection>().RefreshGroundList && refreshGroundSets(session()))
        session().state<GroundSelection>().RefreshGroundList = false;
    std::vector<SetRow> rows;
    for (const auto& set : loadedGroundSets(session()))
        rows.push_back(rowOf(*set));
    return rows;
}

bool frm_MVTextures::clickSet(int row) {
    return clickGroundRow(session(), list().textOf(row, 0));
}

bool frm_MVTextures::loadGroundSelection(const QString& listKey) {
    const bool hasColours = morvane::loadGroundSelection(session(), listKey);
    showDescription(session().state<GroundSelection>().SelectedGroundDescription);
    openDefaultSample();
    list().selectName(session().state<GroundSelection>().SelectedGroundSet);
    return hasColours;
}

/// Several sets are those whose rows are selected.
void frm_MVTextures::noteRows(int) {
    session().state<GroundSelection>().selectedRows = list().selectedNames();
}

void frm_MVTextures::openDefaultSample() {
    openTexImage(sampleTexture(session().AppPath, defaultSample, u"summer"_s,
                               session().state<OptionsInForce>().IsDutch));
}

void frm_MVTextures::openTexImage(const FilePath& path) {
    openImageForTextureSet(path);
    showPictures(sample_.sourceDib(), sample_.resultDib());
}

} // namespace morvane
