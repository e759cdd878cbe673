#include "night/screens/night_colour_screen.h"

#include "night/night_samples.h"
#include "sets/sample_choice.h"
#include "sets/slider_values.h"
#include "ui/buffer_picture.h"
#include "ui/controls/picture_frame.h"

#include <algorithm>

namespace morvane {

namespace {

ColourPageSetup colourPage() {
    ColourPageSetup setup{
        .options = {},
        .optionName = u"opt_LightsBias"_s,
        .sliders = colourSliders,
        .resetAllName = u"cmdResetAll"_s,
        .subjectName = u"lblSample"_s,
        .keys = {{{u"btn_OpenTexture"_s, u"open texture"_s, u"btn_Load_Image"_s,
                   u"Click open a texture type to view."_s, u"Open Texture"_s},
                  {u"btn_Random"_s, u"random night"_s, u"btn_Random"_s,
                   u"Click for MV to select random color settings."_s, u"Random"_s},
                  {u"btn_AddFavorite"_s, u"add fav"_s, u"btn_Accept"_s,
                   u"Click to add the seleted texture set setting."_s, u"Add Favorite"_s}}},
    };
    for (const LightsBias& bias : lightsBiases())
        setup.options.push_back({bias.caption, {}});
    return setup;
}

QString captionOf(const QString& key) {
    const auto found = std::ranges::find(nightSamples(), key, &SampleChoice::key);
    return found == nightSamples().end() ? QString() : found->caption;
}

} // namespace

frm_NightColorize::frm_NightColorize(Shell& shell)
    : ColourPage(shell, u"frm_NightColorize"_s, colourPage()), tuning_(session()),
      picImage_(new PictureFrame(paper())), picDemo_(new PictureFrame(paper())) {
    placePicture(*picImage_, u"picImage"_s, u"Sample texture"_s, sourceLeft);
    placePicture(*picDemo_, u"picDemo"_s, u"With these settings"_s, resultLeft);
    showSubject(captionOf(firstNightSample));
}

void frm_NightColorize::format() {
    markKey(u"ground"_s);
    paper()->setTitle(u"icon_Ground.bmp"_s, u"Night Color"_s);
    if (!tuning_.sourceDib().isCreated()) tuning_.openDefaultSample();
    // The list page had a set of its own in hand; a favourite is saved with these colours.
    showPreview();
}

void frm_NightColorize::showPreview() {
    tuning_.showColourPreview(sliderValues());
    picImage_->setPicture(pictureOf(tuning_.sourceDib()));
    picDemo_->setPicture(pictureOf(tuning_.resultDib()));
}

void frm_NightColorize::opt_LightsBias(int index) {
    setSliders(lightsBiases().at(static_cast<std::size_t>(index)).sliders);
}

void frm_NightColorize::openTexture() {
    if (tuning_.openSample())
        showSubject(captionOf(session().state<NightSampleChoice>().selectedNightTexture));
    showPreview();
}

void frm_NightColorize::randomNightValues() {
    SliderValues sliders{};
    getRandomNightValues(session(), sliders);
    setSliders(sliders);
}

void frm_NightColorize::addFavourite() {
    tuning_.newFavNightTexture();
}

} // namespace morvane
