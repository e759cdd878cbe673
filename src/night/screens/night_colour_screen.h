#pragma once

#include "night/night_tuning.h"
#include "sets/screens/colour_page.h"

namespace morvane {

/// The colour page of the night: four colours of lights to begin with, six sliders, and a sample texture in
/// their colours.
class frm_NightColorize : public ColourPage {
    Q_OBJECT
public:
    explicit frm_NightColorize(Shell& shell);

    void format() override;

    /// The large keys.
    void openTexture();
    void randomNightValues();
    void addFavourite();

private:
    /// Puts the sliders where the colour of lights wants them.
    void opt_LightsBias(int index);
    void chooseOption(int index) override { opt_LightsBias(index); }
    void showPreview() override;

    NightTuning tuning_;
    PictureFrame *picImage_, *picDemo_;
};

} // namespace morvane
