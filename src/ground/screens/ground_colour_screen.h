#pragma once

#include "ground/ground_tuning.h"
#include "sets/screens/colour_page.h"

namespace morvane {

/// The colour page of the ground: six sliders, and a sample texture in their colours.
class frm_GroundColorize : public ColourPage {
    Q_OBJECT
public:
    explicit frm_GroundColorize(Shell& shell);

    void format() override;

    /// The large keys.
    void openTexture();
    void randomGroundValues();
    void addFavourite();

private:
    void chooseOption(int index) override { tuning_.optCloudCover(index); }
    void showPreview() override;

    GroundTuning tuning_;
    PictureFrame *picImage_, *picDemo_;
};

} // namespace morvane
