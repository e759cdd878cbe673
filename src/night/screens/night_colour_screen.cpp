#include "night/screens/night_colour_screen.h"

#include "night/night_samples.h"

namespace morvane {

namespace {

std::vector<ColourPageSetup::Option> lightsOptions() {
    std::vector<ColourPageSetup::Option> options;
    for (const LightsBias& bias : lightsBiases())
        options.push_back({bias.caption, {}});
    return options;
}

} // namespace

frm_NightColorize::frm_NightColorize(Shell& shell)
    : TextureColourPage(shell, u"frm_NightColorize"_s, u"Night Color"_s,
                        textureColourPage(lightsOptions(), u"opt_LightsBias"_s, u"random night"_s)) {
    showSubject(captionOf(nightSamples(), firstNightSample));
}

void frm_NightColorize::opt_LightsBias(int index) {
    setSliders(lightsBiases().at(static_cast<std::size_t>(index)).sliders);
}

} // namespace morvane
