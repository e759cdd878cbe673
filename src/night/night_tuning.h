#pragma once

#include "night/night_sets.h"
#include "sets/texture_tuning.h"

namespace morvane {

/// A colour of lights to begin with: what stands beside its option, and where it sets the six sliders.
struct LightsBias {
    QString caption;
    SliderValues sliders;
};

/// The four options of the colour page, in its order.
const std::array<LightsBias, 4>& lightsBiases();

/// The colour page of the night; what ground and night have in common is TextureTuning.
class NightTuning : public TextureTuning<NightKind> {
public:
    explicit NightTuning(Session& session) : TextureTuning(session) {}

    /// Loads the sample that a page shows at first.
    bool openDefaultSample();
    /// Asks for a sample (frm_SelectNightTexture) and loads it, in the colours of the last preview. False
    /// when none was loaded: after a cancel or a failure that was told.
    bool openSample();
    /// Slider values drawn for any night. Lets events run.
    SliderValues randomValues();
    /// What the page calls the sample in hand.
    QString sampleCaption() const;
};

} // namespace morvane
