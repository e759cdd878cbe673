#pragma once

#include "sets/screens/colour_page.h"
#include "sky/sky_tuning.h"

namespace morvane {

class PalettePicture;

/// The colour page of the sky: the palette picture on which a group of pixels is taken in hand, six sliders
/// for that group, and the texture in the colours of all ten.
class frm_SkyColorize : public ColourPage {
    Q_OBJECT
public:
    explicit frm_SkyColorize(Shell& shell);

    void format() override;

    /// The large keys.
    void openBaseSkyImage();
    void randomizeSky();
    void addFavourite();

private:
    void clickPalette(float x, float y);
    void chooseOption(int index) override { tuning_.optCloudCover(index); }
    void showPreview() override;
    void showPictures();
    void showResult();
    void showGroup();

    SkyTuning tuning_;
    bool isFilled_ = false;
    PalettePicture* picSkySource_;
    PictureFrame* picSkyResult_;
};

} // namespace morvane
