#include "sky/screens/sky_colour_screen.h"

#include "sets/cloud_cover.h"
#include "sets/slider_values.h"
#include "sky/screens/palette_picture.h"
#include "sky/sky_generation.h"
#include "sky/sky_tuning_state.h"
#include "ui/buffer_picture.h"

namespace morvane {

namespace {

ColourPageSetup colourPage() {
    return {
        .options = coverOptions(),
        .optionName = u"optCloudCover"_s,
        .sliders = {{{u"vcSkySat"_s, u"lblSkySat"_s},
                     {u"vcSkyRed"_s, u"lblSkyRed"_s},
                     {u"vcSkyGreen"_s, u"lblSkyGreen"_s},
                     {u"vcSkyBlue"_s, u"lblSkyBlue"_s},
                     {u"vcSkyBright"_s, u"lblSkyBright"_s},
                     {u"vcSkyContrast"_s, u"lblSkyContrast"_s}}},
        .resetAllName = u"cmdSkyResetAll"_s,
        .subjectName = u"lblSkyPixelSelected"_s,
        .keys = {{{u"btn_LoadSkyTexture"_s, u"open sky"_s, u"btn_Load_Image"_s,
                   u"Click open a base sky texture type to customise."_s, u"Open Sky"_s},
                  {u"btn_SkyRandomize"_s, u"random sky"_s, u"btn_Random"_s,
                   u"Click for MV to select random color settings."_s, u"Random"_s},
                  {u"btn_SkyFavorites"_s, u"add fav sky"_s, u"btn_Accept"_s,
                   u"Click to add the seleted texture set setting."_s, u"Add Favorite"_s}}},
    };
}

} // namespace

frm_SkyColorize::frm_SkyColorize(Shell& shell)
    : ColourPage(shell, u"frm_SkyColorize"_s, colourPage()), tuning_(session()),
      picSkySource_(new PalettePicture(paper())), picSkyResult_(new PictureFrame(paper())) {
    placePicture(*picSkySource_, u"picSkySource"_s, u"Base sky texture"_s, sourceLeft);
    placePicture(*picSkyResult_, u"picSkyResult"_s, u"With these settings"_s, resultLeft);
    picSkyResult_->setSmooth(false);
    comeBeforeSliders(*picSkySource_);
    connect(picSkySource_, &PalettePicture::clicked, this, &frm_SkyColorize::clickPalette);
}

/// The first visit shows what was loaded; later ones find the page as it was left.
void frm_SkyColorize::format() {
    markKey(u"sky"_s);
    paper()->setTitle(u"icon_Sky.bmp"_s, u"Sky Color"_s);
    const SliderValues values = tuning_.open();
    showPictures();
    if (isFilled_) return;
    isFilled_ = true;
    // A cover of another spelling leaves the options as they are: choosing one would overwrite it.
    if (const CloudCover* cover = cloudCover(session().state<SkyTuningState>().cloudCover))
        checkOption(cover->number - 1);
    putSliders(values);
    showGroup();
}

void frm_SkyColorize::showPreview() {
    tuning_.SkyProcess(sliderValues());
    showResult();
}

void frm_SkyColorize::showPictures() {
    picSkySource_->setPicture(pictureOf(tuning_.sourceDib()));
    showResult();
}

void frm_SkyColorize::showResult() {
    picSkyResult_->setPicture(pictureOf(tuning_.resultDib()));
}

void frm_SkyColorize::showGroup() {
    picSkySource_->setGroup(session().state<SkyTuningState>().selectedGroup);
    showSubject(tuning_.selectedText());
}

/// The numbers of the group that is taken in hand come first: no preview may run while the sliders go there
/// from those of the group before.
void frm_SkyColorize::clickPalette(float x, float y) {
    putSliders(tuning_.clickPalette(x, y));
    showGroup();
    showPictures();
}

void frm_SkyColorize::openBaseSkyImage() {
    tuning_.openBaseSkyImage();
    showPictures();
}

void frm_SkyColorize::randomizeSky() {
    putSliders(tuning_.randomizeSky(), SkyTuning::drawnLabel);
    showPictures();
}

void frm_SkyColorize::addFavourite() {
    SkyGeneration(session()).newFavSky();
}

} // namespace morvane
