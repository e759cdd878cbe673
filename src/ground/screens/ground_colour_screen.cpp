#include "ground/screens/ground_colour_screen.h"

#include "ground/sample_textures.h"
#include "sets/sample_choice.h"
#include "ui/buffer_picture.h"
#include "ui/controls/picture_frame.h"

#include <algorithm>

namespace morvane {

namespace {

ColourPageSetup colourPage() {
    return {
        .options = coverOptions(),
        .optionName = u"optCloudCover"_s,
        .sliders = colourSliders,
        .resetAllName = u"cmdResetAll"_s,
        .subjectName = u"lblSample"_s,
        .keys = {{{u"btn_OpenTexture"_s, u"open texture"_s, u"btn_Load_Image"_s,
                   u"Click open a texture type to view."_s, u"Open Texture"_s},
                  {u"btn_Random"_s, u"random advanced"_s, u"btn_Random"_s,
                   u"Click for MV to select random color settings."_s, u"Random"_s},
                  {u"btn_AddFavorite"_s, u"add fav"_s, u"btn_Accept"_s,
                   u"Click to add the seleted texture set setting."_s, u"Add Favorite"_s}}},
    };
}

QString captionOf(const std::vector<SampleChoice>& choices, const QString& key) {
    const auto found = std::ranges::find(choices, key, &SampleChoice::key);
    return found == choices.end() ? QString() : found->caption;
}

} // namespace

frm_GroundColorize::frm_GroundColorize(Shell& shell)
    : ColourPage(shell, u"frm_GroundColorize"_s, colourPage()), tuning_(session()),
      picImage_(new PictureFrame(paper())), picDemo_(new PictureFrame(paper())) {
    placePicture(*picImage_, u"picImage"_s, u"Sample texture"_s, sourceLeft);
    placePicture(*picDemo_, u"picDemo"_s, u"With these settings"_s, resultLeft);
    checkOption(0);
    showSubject(u"Cities, Summer"_s);
}

void frm_GroundColorize::format() {
    markKey(u"ground"_s);
    paper()->setTitle(u"icon_Ground.bmp"_s, u"Ground Color"_s);
    if (!tuning_.tuningSourceDib().isCreated()) tuning_.openDefaultSample();
    // The list page had a set of its own in hand; a favourite is saved with these colours.
    showPreview();
}

void frm_GroundColorize::showPreview() {
    tuning_.showColourPreview(sliderValues());
    picImage_->setPicture(pictureOf(tuning_.tuningSourceDib()));
    picDemo_->setPicture(pictureOf(tuning_.tuningResultDib()));
}

void frm_GroundColorize::openTexture() {
    if (tuning_.openSample()) {
        const GroundSampleChoice& choice = session().state<GroundSampleChoice>();
        showSubject(captionOf(sampleTextureTypes(), choice.selectedTextureType) + u", "_s +
                    captionOf(sampleSeasons(), choice.selectedSeason));
    }
    showPreview();
}

void frm_GroundColorize::randomGroundValues() {
    setSliders(tuning_.randomGroundValues());
}

void frm_GroundColorize::addFavourite() {
    tuning_.newFavTexture();
}

} // namespace morvane
