#include "night/screens/night_sets_screen.h"

#include "night/night_samples.h"
#include "night/night_selection.h"
#include "night/night_sets.h"

namespace morvane {

namespace {

constexpr QRgb installedColour = qRgb(255, 0, 0);

// The ground's own words, also in the tip: the page is the ground's.
const HostKeys windowKeys{u"texture sets"_s, u"ground"_s, u"btn_2d"_s,
                          u"Click to minimize Ground Textures screen."_s};

const SetListSetup listPage = textureListPage(
    u"To create a customized night texture set, open the Colorize screen and adjust the color setings to "
    "achieve the look you require.  Accept the settings and use the Activate button on this screen to "
    "create the set.  To activate a series of texture sets select each texture set required from the "
    "list (holding down the Ctrl key whilst selecting) and then click the activate button. Each set will "
    "take between 2 - 3 minutes to create depending on your system specification."_s,
    {{u"Name"_s, 244}, {u"Activated"_s, 68}});

SetRow rowOf(const clsNightTextureSet& set) {
    return {u"Key:"_s + QString::number(set.NtsID),
            {set.TextureSet, set.Actvated},
            {set.TextureSet, u"Activated?"_s},
            set.Installed ? installedColour : palette::textBlue};
}

} // namespace

frm_NightTextures::frm_NightTextures(Shell& shell)
    : SetListForm(shell, u"frm_NightTextures"_s, nightLook, windowKeys, u"frm_NightColorize"_s, listPage),
      sample_(session(), session().state<NightSelection>().colours) {}

void frm_NightTextures::formatList() {
    int row = rowInHand();
    formatNightSets(row);
}

std::vector<SetRow> frm_NightTextures::setRows() {
    if (session().state<NightSelection>().RefreshNightList && refreshNightSets(session()))
        session().state<NightSelection>().RefreshNightList = false;
    std::vector<SetRow> rows;
    for (const auto& set : loadedNightSets(session()))
        rows.push_back(rowOf(*set));
    return rows;
}

bool frm_NightTextures::clickSet(int row) {
    return clickNightRow(session(), list().textOf(row, 0));
}

bool frm_NightTextures::takeSet(const QString& listKey) {
    const bool hasColours = loadNightSelection(session(), listKey);
    showDescription(session().state<NightSelection>().SelectedNightDescription);
    openFirstSample();
    list().selectName(session().state<NightSelection>().SelectedNightSet);
    return hasColours;
}

/// Several sets are those whose rows are selected.
void frm_NightTextures::noteRows(int) {
    session().state<NightSelection>().selectedRows = list().selectedNames();
}

void frm_NightTextures::openFirstSample() {
    openNightTexImage(nightSampleTexture(session().AppPath, firstNightSample));
}

void frm_NightTextures::openNightTexImage(const FilePath& path) {
    openImageForNightTextureSet(path);
    showPictures(sample_.sourceDib(), sample_.resultDib());
}

void frm_NightTextures::NightTsProcess() {
    sample_.TsProcess();
    showPictures(sample_.sourceDib(), sample_.resultDib());
}

} // namespace morvane
