#include "sky/screens/sky_sets_screen.h"

#include "core/failure_report.h"
#include "sky/sky_base_sets.h"

namespace morvane {

namespace {

constexpr QRgb usualColour = qRgb(0, 0, 255);

const HostKeys windowKeys{u"sky texture sets"_s, u"sky"_s, u"btn_SkyColor"_s,
                          u"Click to minimize Sky Textures Screen."_s};

const SetListSetup listPage{
    .instructionsName = u"lblSkyTsInstructions"_s,
    .instructions =
        u"To create a series of sky texture sets please click the create button and then select the base "
        u"sets "
        "you wish to use to create the textures sets.  Then enter the number of each cloud cover value "
        "required into the text boxes on the dialog screen that appears. Click the checkmark button to "
        "commence the creation process. These sets, unlike the ground texture sets, only take around 5 - 10 "
        "seconds each to create. "_s,
    .listName = u"lstSkyTextureSets"_s,
    .listWidth = 394,
    .columns = {{u"Name"_s, 148},
                {u"Activated?"_s, 64},
                {u"Cloud Cover"_s, 78},
                {u"Texture Set Group"_s, 90}},
    .hasCheckBoxes = true,
    .sourceName = u"picSkyTextureSetSource"_s,
    .resultName = u"picSkyTextureSetResult"_s,
    .pictureSide = 80,
    .pictureLefts = {416, 502},
    .isSmooth = false,
    .descriptionName = u"lblSkyTSDescription"_s,
    .descriptionRole = TextRole::longHelp, // the longest fits
    .create = {u"btn_SkytextureCreate"_s, u"create Sts"_s},
    .activate = {u"btn_SkyTextureActivate"_s, u"activate sts"_s},
    .install = {u"btn_SkyTextureInstall"_s, u"install sts"_s},
    .remove = {u"btn_SkyTextureDelete"_s, u"delete Sts"_s},
    // Unlike the ground: an activated sky set can be deactivated however its row was selected.
    .ofActivatedByPage = ButtonState::deactivate,
};

} // namespace

frm_KMTextures::frm_KMTextures(Shell& shell)
    : KindListForm(shell, u"frm_KMTextures"_s, skyLook, windowKeys, u"frm_SkyColorize"_s, listPage),
      sample_(session(), SkyTable::texture) {
    list().setFont(fontOf(TextRole::longHelp)); // four columns and a name with date and time
    // One row is in hand; several are those that are ticked.
    list().setSelectionMode(QAbstractItemView::SingleSelection);
    connect(&list(), &QTreeWidget::itemChanged, this, &frm_KMTextures::noteRows);
}

void frm_KMTextures::formatList() {
    int row = 0;
    reportFailures(session().user, {}, [&] { row = refreshedSets().findIndex(selection().SelectedSkySet); });
    formatSets(row);
}

SetRow frm_KMTextures::rowOf(const clsSkyTextureSet& set) const {
    return {listKeyOf(set),
            {set.SkyTextureSet, set.Activated, set.CloudCover, set.TextureSetGroup},
            QStringList(4, set.SkyTextureSet),
            set.Installed ? installedSetColour : usualColour};
}

bool frm_KMTextures::takeSet(const QString& listKey) {
    const bool hasColours = loadSkySubSet(session(), listKey, skyDay);
    showDescription(selection().SelectedSkyDescription);
    // A base set that was edited by hand may be no folder's name.
    reportFailures(session().user, {}, [this] {
        sample_.openImage(skySampleFile(session(), selection().SelectedSkyGroup));
        showPictures(sample_.sourceDib(), sample_.resultDib());
    });
    return hasColours;
}

/// Without a set there is no base set that a sample could be taken from.
void frm_KMTextures::showNoSet() {
    noteRows();
    showPictures({}, {});
}

} // namespace morvane
