#pragma once

#include "sets/screens/colour_page.h"
#include "ui/buffer_picture.h"
#include "ui/controls/picture_frame.h"

namespace morvane {

/// What the setups of ground and night have in common; options and the word behind "random" are each one's
/// own.
ColourPageSetup textureColourPage(const std::vector<ColourPageSetup::Option>& options,
                                  const QString& optionName, const QString& randomKey);

/// The colour page of the ground or of the night: six sliders, and a sample texture in their colours.
template <class Tuning>
class TextureColourPage : public ColourPage {
public:
    void format() override {
        markKey(u"ground"_s);
        paper()->setTitle(u"icon_Ground.bmp"_s, title_);
        if (!tuning_.sourceDib().isCreated()) tuning_.openDefaultSample();
        // The list page had a set of its own in hand; a favourite is saved with these colours.
        showPreview();
    }

    /// The large keys.
    void openTexture() {
        if (tuning_.openSample()) showSubject(tuning_.sampleCaption());
        showPreview();
    }
    void drawValues() { setSliders(tuning_.randomValues()); }
    void addFavourite() { tuning_.newFavourite(); }

protected:
    TextureColourPage(Shell& shell, const QString& name, const QString& title, const ColourPageSetup& setup)
        : ColourPage(shell, name, setup), tuning_(session()), title_(title),
          picImage_(new PictureFrame(paper())), picDemo_(new PictureFrame(paper())) {
        placePicture(*picImage_, u"picImage"_s, u"Sample texture"_s, sourceLeft);
        placePicture(*picDemo_, u"picDemo"_s, u"With these settings"_s, resultLeft);
    }

    void showPreview() override {
        tuning_.showColourPreview(sliderValues());
        picImage_->setPicture(pictureOf(tuning_.sourceDib()));
        picDemo_->setPicture(pictureOf(tuning_.resultDib()));
    }

    Tuning tuning_;

private:
    QString title_;
    PictureFrame *picImage_, *picDemo_;
};

} // namespace morvane
