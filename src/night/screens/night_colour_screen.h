#pragma once

#include "night/night_tuning.h"
#include "sets/screens/texture_colour_page.h"

namespace morvane {

/// The colour page of the night, with four colours of lights to begin with.
class frm_NightColorize : public TextureColourPage<NightTuning> {
    Q_OBJECT
public:
    explicit frm_NightColorize(Shell& shell);

private:
    /// Puts the sliders where the colour of lights wants them.
    void opt_LightsBias(int index);
    void chooseOption(int index) override { opt_LightsBias(index); }
};

} // namespace morvane
