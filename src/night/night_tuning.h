#pragma once

#include "sets/slider_values.h"
#include "sets/texture_sample.h"

namespace morvane {

/// A colour of lights to begin with: what stands beside its option, and where it sets the six sliders.
struct LightsBias {
    QString caption;
    SliderValues sliders;
};

/// The four options of the colour page, in its order.
const std::array<LightsBias, 4>& lightsBiases();

/// Draws all six slider values, one range a field for every night.
void getRandomNightValues(Session& session, SliderValues& values);

/// The work behind the colour page of the night: a sample texture in the colours of six sliders, and their
/// saving as a favourite. The sliders and the painting are the page's.
class NightTuning {
public:
    explicit NightTuning(Session& session);

    const cDIBSection& sourceDib() const { return colourise_.sourceDib(); }
    const cDIBSection& resultDib() const { return colourise_.resultDib(); }

    /// Loads the sample that a page shows at first.
    bool openDefaultSample();
    /// Asks for a sample (frm_SelectNightTexture) and loads it, in the colours of the last preview. False
    /// when none was loaded: after a cancel or a failure that was told.
    bool openSample();

    /// Recolours the sample by the sliders and makes their effective values the session's colours, so that
    /// they are the ones that a favourite is saved with.
    void showColourPreview(const SliderValues& sliders);

    /// Asks for name and description (frm_AddFav) and saves the favourite.
    void newFavNightTexture();

private:
    void saveNightFavourite(const QString& name);

    Session& session_;
    TextureSample colourise_;
};

} // namespace morvane
